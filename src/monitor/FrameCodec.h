#pragma once
// Frames and check fields of the monitor's protocol, as bytes only: no device, no clock.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zel {

using Report = std::vector<std::uint8_t>;

/// The one-byte command codes.
enum class Command : std::uint8_t {
    records = 0x22,
    sendID = 0x23,
    id = 0x24,
    date = 0x26,
    setDate = 0x27,
    version = 0x3E,
};

inline constexpr std::array<std::uint8_t, 4> commandPreamble{0x14, 0x12, 0x16, 0x18};
inline constexpr std::uint8_t acknowledgement = 0x06; ///< data byte 1 of a reply's first report
inline constexpr std::size_t reportCapacity = 15;     ///< data bytes that fit into one input report
inline constexpr std::size_t chunkCapacity = 7;       ///< payload bytes in one chunk of a long data frame

/// The output report that opens a command.
[[nodiscard]] std::array<std::uint8_t, 5> commandFrame(Command command);
/// A long data frame as the output reports that carry it.
[[nodiscard]] std::vector<Report> dataChunks(std::string_view payload);

/// True when data byte 1 of the report is the acknowledgement.
[[nodiscard]] bool isAcknowledged(std::span<const std::uint8_t> report);
/// What a report adds to its reply; the \p first one's acknowledgement is not part of it. Never more than was
/// read.
[[nodiscard]] std::string reportPayload(std::span<const std::uint8_t> report, bool first);

/// The two characters that end a reply and vouch for the rest of it.
struct CheckField {
    char high;
    char low;
};
/// Over \p payload without its last two characters, of which there must be at least two.
[[nodiscard]] CheckField replyCheckField(std::string_view payload);
/// True when a reply's last two characters are its check field.
[[nodiscard]] bool checkSum(std::string_view payload);
/// Writes the check field of a frame to the monitor, which differs from a reply's: the monitor expects it so.
/// \return false, with the frame left alone, when it is shorter than two or its sum exceeds 65535
bool setCheckSum(std::string& frame);
/// True when \p expected stands at \p offset; nothing stands beyond the end.
[[nodiscard]] bool checkFixed(std::string_view buffer, std::size_t offset, std::string_view expected);

/// Value of a hexadecimal digit as the monitor counts: ':' to '?' are 10 to 15 as well, nothing is validated.
[[nodiscard]] std::uint8_t AsciiToInt(char digit);
/// Pairs of hexadecimal digits to bytes, up to the first byte 0x00.
[[nodiscard]] std::string convertAsciiArray(std::string_view digits);

} // namespace zel

#pragma once
// Content of the long data frames and of the replies: lengths, positions and fixed texts of the protocol.

#include <cstddef>
#include <string>
#include <string_view>

namespace zel {

inline constexpr std::size_t identityReplyLength = 32;
inline constexpr std::size_t versionReplyLength = 12;
inline constexpr std::size_t dateReplyLength = 86;
inline constexpr std::size_t recordsHeaderLength = 32;
inline constexpr std::size_t recordLength = 32;
inline constexpr std::size_t checkFieldLength = 2;
inline constexpr std::size_t mostRecords = 255; ///< what the header's two digits can say
inline constexpr std::size_t longestID = 11;    ///< bytes that the monitor keeps and gives back

inline constexpr std::string_view identityFixed = ",05.00\r\n"; ///< of the identity reply, behind the ID
inline constexpr std::size_t identityFixedOffset = 22;
inline constexpr std::string_view versionPrefix = "303530";
inline constexpr std::string_view versionSuffix = "31";
inline constexpr std::size_t versionSuffixOffset = 8;

inline constexpr std::size_t idFrameLength = 66;
inline constexpr std::size_t clockFrameLength = 82;
inline constexpr std::size_t clockTextLength = 14;

/// The monitor's settings that go with every clock frame; those read from a monitor are not written back.
inline constexpr std::string_view ginitialParam =
    "0000011803010007000000000000FF3296F01496FA0A01010101010004000000000000";

/// Writes an ID of at most 28 bytes (more are cut) and clears the stored readings or keeps them.
[[nodiscard]] std::string idFrame(std::string_view ID, bool clear);
/// Sets the clock. \param time 14 characters, "yyyyMMddHHmmss"
[[nodiscard]] std::string clockFrame(std::string_view time);

} // namespace zel

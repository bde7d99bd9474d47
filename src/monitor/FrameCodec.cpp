#include "monitor/FrameCodec.h"

#include <algorithm>
#include <numeric>

namespace zel {

namespace {

std::uint32_t sumOf(std::string_view text) {
    return std::accumulate(text.begin(), text.end(), std::uint32_t{0},
                           [](std::uint32_t sum, char c) { return sum + static_cast<std::uint8_t>(c); });
}

/// What the check field vouches for.
std::string_view checkedPart(std::string_view payload) { return payload.substr(0, payload.size() - 2); }

} // namespace

std::array<std::uint8_t, 5> commandFrame(Command command) {
    std::array<std::uint8_t, 5> frame{};
    std::copy(commandPreamble.begin(), commandPreamble.end(), frame.begin());
    frame.back() = static_cast<std::uint8_t>(command);
    return frame;
}

std::vector<Report> dataChunks(std::string_view payload) {
    std::vector<Report> chunks;
    for (; !payload.empty(); payload.remove_prefix(std::min(payload.size(), chunkCapacity))) {
        const std::string_view part = payload.substr(0, chunkCapacity);
        Report& chunk = chunks.emplace_back(Report{0xFF, static_cast<std::uint8_t>(0xF0 | part.size())});
        chunk.insert(chunk.end(), part.begin(), part.end());
    }
    return chunks;
}

bool isAcknowledged(std::span<const std::uint8_t> report) {
    return report.size() > 1 && report[1] == acknowledgement;
}

std::string reportPayload(std::span<const std::uint8_t> report, bool first) {
    if (report.empty()) return {};
    const std::size_t announced = report[0] & 0x0FU;
    const auto data = report.subspan(1, std::min(announced, report.size() - 1));
    const auto payload = data.subspan(first && !data.empty() ? 1 : 0);
    return {payload.begin(), payload.end()};
}

CheckField replyCheckField(std::string_view payload) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const std::uint32_t sum = sumOf(checkedPart(payload));
    return {digits[(sum >> 4U) & 0x0FU], digits[sum & 0x0FU]};
}

bool checkSum(std::string_view payload) {
    if (payload.size() < 2) return false;
    const CheckField field = replyCheckField(payload);
    return payload[payload.size() - 2] == field.high && payload.back() == field.low;
}

bool setCheckSum(std::string& frame) {
    constexpr std::uint32_t largestSum = 65535;
    if (frame.size() < 2) return false;
    const std::uint32_t sum = sumOf(checkedPart(frame));
    if (sum > largestSum) return false;
    frame[frame.size() - 2] = static_cast<char>('0' + (sum % 256) / 10);
    frame.back() = static_cast<char>('0' + sum % 10);
    return true;
}

bool checkFixed(std::string_view buffer, std::size_t offset, std::string_view expected) {
    return expected.empty() || (offset < buffer.size() && buffer.substr(offset, expected.size()) == expected);
}

std::uint8_t AsciiToInt(char digit) {
    const auto code = static_cast<std::uint8_t>(digit);
    return static_cast<std::uint8_t>(code < 'A' ? code - 0x30 : code - 0x37);
}

std::string convertAsciiArray(std::string_view digits) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
        const unsigned high = AsciiToInt(digits[i]);
        const unsigned low = AsciiToInt(digits[i + 1]) & 0x0FU;
        const auto byte = static_cast<char>((high << 4U | low) & 0xFFU);
        if (byte == '\0') break;
        bytes.push_back(byte);
    }
    return bytes;
}

} // namespace zel

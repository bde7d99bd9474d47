#include "monitor/MonitorFrames.h"

#include "monitor/FrameCodec.h"

namespace zel {

namespace {

constexpr std::size_t clearFlagOffset = 3;
constexpr std::size_t idOffset = 8;
constexpr std::size_t idCapacity = (idFrameLength - checkFieldLength - idOffset) / 2;

/// A nibble as '0' to '?': the monitor knows no 'A' to 'F' here.
char nibble(unsigned value) { return static_cast<char>((value & 0x0FU) | 0x30U); }

} // namespace

std::string idFrame(std::string_view ID, bool clear) {
    std::string frame(idFrameLength, '0');
    frame[clearFlagOffset] = clear ? '0' : '1';
    frame[7] = '1';
    std::size_t position = idOffset;
    for (const char c : ID.substr(0, idCapacity)) {
        const auto byte = static_cast<unsigned char>(c);
        frame[position++] = nibble(byte >> 4U);
        frame[position++] = nibble(byte);
    }
    setCheckSum(frame);
    return frame;
}

std::string clockFrame(std::string_view time) {
    std::string frame{time.substr(4, 4)};
    frame.append(time.substr(2, 2)).append("20").append(time.substr(8, 6));
    frame.append(ginitialParam.substr(0, clockFrameLength - clockTextLength));
    setCheckSum(frame);
    return frame;
}

} // namespace zel

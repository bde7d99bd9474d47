#include "monitor/FrameCodec.h"

#include "monitor/MonitorFrames.h"

#include <gmock/gmock.h>

namespace zel {
namespace {

using testing::ElementsAre;

TEST(FrameCodec, CommandFrameIsThePreambleAndTheCode) {
    EXPECT_THAT(commandFrame(Command::version), ElementsAre(0x14, 0x12, 0x16, 0x18, 0x3E));
    EXPECT_THAT(commandFrame(Command::records), ElementsAre(0x14, 0x12, 0x16, 0x18, 0x22));
}

TEST(FrameCodec, LongDataIsCutIntoChunksOfSeven) {
    EXPECT_THAT(dataChunks("ABCDEFGH"),
                ElementsAre(Report{0xFF, 0xF7, 'A', 'B', 'C', 'D', 'E', 'F', 'G'}, Report{0xFF, 0xF1, 'H'}));
    EXPECT_EQ(dataChunks("1234567").size(), 1U);
    EXPECT_EQ(dataChunks(std::string(66, '0')).size(), 10U);
    EXPECT_EQ(dataChunks(std::string(66, '0')).back(), (Report{0xFF, 0xF3, '0', '0', '0'}));
    EXPECT_TRUE(dataChunks("").empty());
}

TEST(FrameCodec, ReportPayloadNeverExceedsWhatWasRead) {
    struct Case {
        Report report;
        bool first;
        std::string payload;
    };
    const Case cases[] = {
        {{0x03, 0x06, 'a', 'b'}, true, "ab"},
        {{0xF3, 'x', 'a', 'b'}, false, "xab"},
        {{0x0F, 'a', 'b'}, false, "ab"},
        {{0x01, 'a', 'b'}, false, "a"},
        {{0x0F, 0x06}, true, ""},
        {{0x00, 0x06, 'a'}, true, ""},
        {{0x05}, true, ""},
        {{}, false, ""},
    };
    for (const auto& [report, first, payload] : cases)
        EXPECT_EQ(reportPayload(report, first), payload);
}

TEST(FrameCodec, CheckFieldsOfBothDirections) {
    std::string sum1234(2, '\0'); // bytes with the sum 0x1234
    sum1234.insert(0, std::string(18, '\xFF') + "\x46");
    ASSERT_TRUE(setCheckSum(sum1234));
    EXPECT_EQ(sum1234.substr(19), "50");
    EXPECT_FALSE(checkSum(sum1234));
    EXPECT_TRUE(checkSum(sum1234.replace(19, 2, "34")));
    EXPECT_FALSE(checkSum(sum1234.replace(19, 2, "35")));

    std::string runsPastNine(2, '0');
    runsPastNine.insert(0, "\xFF");
    ASSERT_TRUE(setCheckSum(runsPastNine));
    EXPECT_EQ(runsPastNine.substr(1), "I5");
    EXPECT_TRUE(checkSum("\x0F"
                         "0F"));
    EXPECT_TRUE(checkSum("00"));
    EXPECT_FALSE(checkSum("0"));
    EXPECT_FALSE(checkSum(""));
}

TEST(FrameCodec, CheckFieldIsRefusedBeyond65535AndBelowTwo) {
    std::string largest = std::string(257, '\xFF') + "xx";
    EXPECT_TRUE(setCheckSum(largest));
    std::string tooLarge = std::string(257, '\xFF') + "\x01xx";
    EXPECT_FALSE(setCheckSum(tooLarge));
    EXPECT_EQ(tooLarge.substr(258), "xx");
    std::string empty(2, 'x');
    EXPECT_TRUE(setCheckSum(empty));
    EXPECT_EQ(empty, "00");
    std::string shorter = "x";
    EXPECT_FALSE(setCheckSum(shorter));
}

TEST(FrameCodec, FixedContentEndsWhereTheBufferEnds) {
    EXPECT_TRUE(checkFixed("ab12", 2, "12"));
    EXPECT_FALSE(checkFixed("ab12", 2, "123"));
    EXPECT_FALSE(checkFixed("ab12", 9, "1"));
    EXPECT_TRUE(checkFixed("ab12", 9, ""));
}

TEST(FrameCodec, HexadecimalPairsStopAtTheFirstZeroByte) {
    EXPECT_EQ(convertAsciiArray("41420043"), "AB");
    EXPECT_EQ(convertAsciiArray("3:5?"), "\x3A\x5F");
    EXPECT_EQ(convertAsciiArray("415"), "A");
    EXPECT_EQ(convertAsciiArray(""), "");
    EXPECT_EQ(AsciiToInt('F'), 15);
    EXPECT_EQ(AsciiToInt('a'), 0x2A);
    EXPECT_EQ(AsciiToInt(' '), 0xF0);
}

TEST(MonitorFrames, IDAndClearFlag) {
    const std::string kept = idFrame("AZ", false);
    EXPECT_EQ(kept.substr(0, 64), "000100014"
                                  "15:"
                                      + std::string(52, '0'));
    EXPECT_EQ(kept.size(), 66U);
    EXPECT_EQ(idFrame("AZ", true).substr(0, 8), "00000001");
    // 64 characters: 59 of '0', and "1", "1", "4", "1", "5", ":" whose digits add 1 + 1 + 4 + 1 + 5 + 10
    EXPECT_EQ(64 * '0' + 22, 3094);
    EXPECT_EQ(kept.substr(64), (std::string{'0' + 3094 % 256 / 10, '0' + 3094 % 10}));
    EXPECT_EQ(idFrame(std::string(40, 'A'), false).size(), 66U);
}

TEST(MonitorFrames, ClockIsRearranged) {
    const std::string frame = clockFrame("20190322140509");
    EXPECT_EQ(frame.size(), 82U);
    EXPECT_EQ(frame.substr(0, 14), "03221920140509");
    EXPECT_EQ(frame.substr(14, 66), ginitialParam.substr(0, 66));
}

} // namespace
} // namespace zel

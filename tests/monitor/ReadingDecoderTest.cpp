#include "monitor/ReadingDecoder.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

constexpr ModelCapability afib{.isAFib = true};
constexpr ModelCapability pad{.isPAD = true};
const std::string sample = "1903221405"
                           "0"
                           "000000"
                           "48"
                           "140"
                           "78"
                           "00000000";
const QString ID = QStringLiteral("AZ");

ReadingModel decoded(const std::string& record, ModelCapability capability = {}) {
    return initWithUSBData(record, ID, capability);
}

QString dateText(const ReadingModel& reading) {
    return DateToStr(reading.ReadingDate, QStringLiteral("yyyy-MM-dd HH:mm"));
}

TEST(ReadingDecoder, GoodRecord) {
    const ReadingModel reading = decoded(sample);
    EXPECT_EQ(dateText(reading), QStringLiteral("2019-03-22 14:05"));
    EXPECT_EQ(reading.ID, ID);
    EXPECT_EQ(reading.sys, 120U);
    EXPECT_EQ(reading.dia, 80U);
    EXPECT_EQ(reading.pulse, 72U);
    EXPECT_EQ(reading.map, 93U);
    EXPECT_EQ(reading.pp, 40U);
    EXPECT_FALSE(reading.isNA);
}

TEST(ReadingDecoder, FlagByteByModel) {
    struct Case {
        char flag;
        std::uint32_t mam, afibCode, padCode;
    };
    const Case cases[] = {{'\0', 0, 5, 2}, {'\1', 1, 5, 2}, {'\2', 1, 5, 2}, {'\3', 0, 4, 1},  {'0', 0, 4, 1},
                          {'1', 1, 4, 1},  {'2', 1, 4, 1},  {'3', 0, 4, 1},  {'\xFF', 0, 4, 1}};
    for (const auto& [flag, mam, afibCode, padCode] : cases) {
        std::string record = sample;
        record[10] = flag;
        EXPECT_EQ(decoded(record, afib).Arrhythmia, afibCode) << int(flag);
        EXPECT_EQ(decoded(record, pad).Arrhythmia, padCode) << int(flag);
        EXPECT_EQ(decoded(record).Arrhythmia, 0U) << int(flag);
        EXPECT_EQ(decoded(record).mam, mam) << int(flag);
        EXPECT_EQ(decoded(record).sys, 120U) << int(flag);
    }
}

TEST(ReadingDecoder, Dates) {
    const auto dated = [](const std::string& text) { return decoded(text + sample.substr(10)); };
    EXPECT_EQ(*dated("1900000000").ReadingDate, getNilReadingDate());
    EXPECT_EQ(*dated("xx00000000").ReadingDate, getNilReadingDate());
    EXPECT_FALSE(dated("1913221405").ReadingDate.has_value());
    EXPECT_FALSE(dated("19032214z5").ReadingDate.has_value());
    EXPECT_FALSE(dated("2062221 02").ReadingDate.has_value()) << "no year 202";
    EXPECT_EQ(dateText(dated("2402292359")), QStringLiteral("2024-02-29 23:59"));
}

TEST(ReadingDecoder, RubbishCountsAsZeroAndNothingOverruns) {
    std::string broken = sample;
    broken[5] = '\0'; // the text ends here
    EXPECT_EQ(decoded(broken).sys, 0U);
    EXPECT_FALSE(decoded(broken).ReadingDate.has_value());
    for (std::size_t length = 0; length < sample.size(); ++length)
        EXPECT_EQ(decoded(sample.substr(0, length)).pulse, length >= 19   ? 72U
                                                           : length == 18 ? 64U
                                                                          : 0U)
            << length;
    const ReadingModel below = decoded(sample.substr(0, 19) + "14010" + sample.substr(24));
    EXPECT_EQ(below.pp, 16U - 80U); // wraps, as the record's arithmetic does
}

TEST(ReadingDecoder, Conversions) {
    EXPECT_EQ(convertDiastole("FFF"), 1023U);
    EXPECT_EQ(convertDiastole("14z"), 80U);
    EXPECT_EQ(convertPulse("fF"), 255U);
    EXPECT_EQ(convertPulse("z1"), 1U);
    EXPECT_EQ(convertSystole("z1"), 0U);
    EXPECT_EQ(convertSystole("1z"), 1U);
}

TEST(ReadingDecoder, aDateThatIsCutShortIsNone) {
    EXPECT_FALSE(initWithUSBData("4060531", QStringLiteral("A"), {}).ReadingDate);
}

} // namespace
} // namespace zel

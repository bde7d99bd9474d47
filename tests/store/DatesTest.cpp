#include "store/XmlDate.h"
#include "support/InZone.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

Instant local(const QString& text) { return StrToDate(text, u"yyyy-MM-dd HH:mm:ss"_s).value(); }

struct XmlDateCase {
    const char* text;
    const char* utc; ///< empty: no date
};

TEST(Dates, ReadTheFilesForm) {
    for (const auto& [text, utc] : {
             XmlDateCase{"2019-03-22T14:05:00+08:00", "2019-03-22 06:05:00.000"},
             XmlDateCase{"2019-03-22T14:05:00.123+08:00", "2019-03-22 06:05:00.123"},
             XmlDateCase{"2019-03-22T14:05:00-03:30", "2019-03-22 17:35:00.000"},
             XmlDateCase{"2020-02-29T00:00:00+00:00", "2020-02-29 00:00:00.000"},
             XmlDateCase{"2019-02-29T00:00:00+00:00", ""},
             XmlDateCase{"2019-02-30T00:00:00.000+00:00", ""},
             XmlDateCase{"2019-13-01T00:00:00+00:00", ""},
             XmlDateCase{"2019-03-22T24:05:00+01:00", ""},
             XmlDateCase{"2019-03-22T23:59:59+01:00", "2019-03-22 22:59:59.000"},
             XmlDateCase{"2019-03-22T23:60:59+01:00", ""},
             XmlDateCase{"2019-03-22T23:59:60+01:00", ""},
             XmlDateCase{"2019-03-22T12:00:00+23:59", "2019-03-21 12:01:00.000"},
             XmlDateCase{"2019-03-22T12:00:00+24:00", ""},
             XmlDateCase{"2019-03-22T12:00:00+01:60", ""},
             XmlDateCase{"0001-01-01T00:00:00+00:00", "0001-01-01 00:00:00.000"},
             XmlDateCase{"0000-12-31T00:00:00+00:00", ""},
             XmlDateCase{"2019-03-22T14:05:00.1234+08:00", "2019-03-22 06:05:00.123"},
             XmlDateCase{"2019-03-22T14:05:00.12+08:00", "2019-03-22 06:05:00.120"},
             XmlDateCase{"2019-03-22T14:05:00x01:00", ""},
             XmlDateCase{"2019-03-22T14:05:00+01:00x", ""},
             XmlDateCase{"2019-03-22T14:05:00+0100", ""}, // the last colon is taken out, wherever it stands
             XmlDateCase{"2019-03-22T14:05:00Z", ""},
             XmlDateCase{"2019/03/22 14.05.00 01.00", ""},
             XmlDateCase{"2019-03-22", ""},
             XmlDateCase{"", ""},
             XmlDateCase{":", ""},
             XmlDateCase{"2019-03-22T14:05:00.5+08:00", "2019-03-22 06:05:00.500"},
             // Dozens of digits once ended the program inside ICU.
             XmlDateCase{"2019-03-22T14:05:00.12345678901234567890123456789012345+08:00",
                         "2019-03-22 06:05:00.123"},
             XmlDateCase{"2019-03-22T14:05:00000000000000000000000000000000000000.000+08:00", ""},
             XmlDateCase{"99999999999999999-03-22T14:05:00+08:00", ""},
             XmlDateCase{"99999-03-22T14:05:00+08:00", ""},
         }) {
        const Date date = XMLStrToDate(text);
        EXPECT_EQ(date ? DateToStr_EN(date, u"yyyy-MM-dd HH:mm:ss.SSS"_s).toStdString() : "", utc) << text;
    }
}

TEST(Dates, WriteTheFilesFormAndReadItBack) {
    EXPECT_EQ(XMLDateToStr(local(u"2019-03-22 14:05:00"_s)), u"2019-03-22T14:05:00+01:00"_s);
    EXPECT_EQ(XMLDateToStr(local(u"2019-07-22 14:05:00"_s)), u"2019-07-22T14:05:00+02:00"_s);
    EXPECT_EQ(XMLDateToStr({}), u"0001-01-01T00:00:00+08:00"_s);
    EXPECT_EQ(XMLStrToDate("0001-01-01T00:00:00+08:00"), getNilDate());
}

TEST(Dates, EmptyDateStaysEmptyInEveryZone) {
    for (const char* name : {"Europe/Berlin", "America/New_York", "Asia/Shanghai", "Pacific/Apia", "UTC"}) {
        const InZone zone{name};
        ASSERT_TRUE(isNilDate(getNilDate())) << name;
        const QString text = XMLDateToStr(getNilDate());
        EXPECT_EQ(text.size(), 25) << text.toStdString(); // no seconds in the offset of times before zones
        EXPECT_TRUE(isNilDate(XMLStrToDate(text.toStdString()))) << text.toStdString();
        EXPECT_TRUE(isNilReadingDate(getNilReadingDate())) << name;
    }
    EXPECT_TRUE(isNilDate({}));
    EXPECT_FALSE(isNilDate(local(u"0002-01-01 00:00:00"_s)));
}

TEST(Dates, ShowTheirOwnDayInEveryZoneWhateverTheirForm) {
    const std::pair<const char*, QString> cases[] = {
        {"2026-01-03T23:05:07+01:00", u"2026-01-03 23:05:07.000"_s},
        {"2026-01-03T7:05:00-3:30", u"2026-01-03 07:05:00.000"_s},
        {"2026-01-03T23:05:00UTC+01:00", u"2026-01-03 23:05:00.000"_s},
        {"2026-01-03T00:05:00.1234567-11:00", u"2026-01-03 00:05:00.123"_s},
        {"0001-01-01T00:00:00+08:00", u"0001-01-01 00:00:00.000"_s},
        {"2026-01-03T23:05:00Z:", {}}, // not said to be anybody's wall clock
        {"2026-02-30T23:05:00+1:00", {}},
    };
    for (const char* name : {"UTC", "Europe/Berlin", "Asia/Tokyo", "America/St_Johns", "Pacific/Apia"}) {
        const InZone zone{name};
        for (const auto& [text, shown] : cases) {
            EXPECT_EQ(DateToStr_EN(XMLStrToWallClock(text), u"yyyy-MM-dd HH:mm:ss.SSS"_s), shown) << text;
            const Date date = XMLStrToLocalDate(text);
            if (shown.isEmpty())
                EXPECT_EQ(date, XMLStrToDate(text)) << text;
            else
                EXPECT_EQ(dayText(LocalZone{}.day(date), u"yyyy-MM-dd"_s), shown.left(10)) << text << name;
        }
    }
}

TEST(Dates, DaySurvivesOffsetsWithSeconds) {
    const InZone zone{"Africa/Monrovia"}; // 44 minutes and 30 seconds behind until 1972
    const QString text = XMLDateToStr(local(u"1970-06-02 00:00:00"_s));
    EXPECT_EQ(text, u"1970-06-02T00:00:00-00:45"_s);
    EXPECT_EQ(dayText(LocalZone{}.day(XMLStrToDate(text.toStdString()))), u"1970/06/02"_s);
}

TEST(Dates, DayStartsWithTheFirstOfTwoMidnights) {
    const InZone zone{"America/Havana"}; // clocks go back from 01:00 to 00:00
    const Instant halfPast = XMLStrToDate("2019-11-03T00:30:00-04:00").value();
    EXPECT_EQ(XMLDateToStr(DateToDayBoundary(halfPast, true)), u"2019-11-03T00:00:00-04:00"_s);
    EXPECT_EQ(XMLDateToStr(DateToDayBoundary(halfPast, false)), u"2019-11-03T23:59:59-05:00"_s);
}

TEST(Dates, UndatedIsTheWholeFirstDayOf2000) {
    EXPECT_TRUE(isNilReadingDate({}));
    EXPECT_TRUE(isNilReadingDate(local(u"2000-01-01 23:59:59"_s)));
    EXPECT_FALSE(isNilReadingDate(local(u"2000-01-02 00:00:00"_s)));
    EXPECT_FALSE(isNilReadingDate(local(u"1999-12-31 23:59:59"_s)));
}

TEST(Dates, LongTextsAreNoDates) {
    const std::string digits(8'000'000, '1');
    EXPECT_FALSE(XMLStrToDate("2019-03-22T14:05:00." + digits + "+08:00"));
    EXPECT_FALSE(StrToDate(QString::fromStdString(digits), u"SSS"_s));
    EXPECT_FALSE(StrToDate(u"1234567890123456789012345678901234567890"_s, u"SSS"_s));
}

TEST(Dates, PatternsMustMatchWhole) {
    EXPECT_EQ(DateToStr(StrToDate(u"201903221405"_s, u"yyyyMMddHHmm"_s), u"yyyy/MM/dd HH:mm"_s),
              u"2019/03/22 14:05"_s);
    for (const char* text : {"2019032214", "201913221405", "20190322140x", "201903221405 ", ""}) {
        EXPECT_FALSE(StrToDate(QString::fromLatin1(text), u"yyyyMMddHHmm"_s)) << text;
    }
    EXPECT_TRUE(DateToStr({}, u"yyyy"_s).isNull());
}

TEST(Dates, TimeThatDaylightSavingSkipsKeepsItsDate) {
    EXPECT_EQ(XMLDateToStr(local(u"2019-03-31 02:30:00"_s)), u"2019-03-31T03:30:00+02:00"_s);
}

struct DayDiffCase {
    QString a;
    QString b;
    std::int64_t days;
};

TEST(Dates, DaysAndSecondsApart) {
    for (const auto& [a, b, days] : {
             DayDiffCase{u"2019-03-22 23:59:00"_s, u"2019-03-23 00:01:00"_s, 1},
             DayDiffCase{u"2019-03-22 00:01:00"_s, u"2019-03-22 23:59:00"_s, 0},
             DayDiffCase{u"2019-03-30 12:00:00"_s, u"2019-04-01 12:00:00"_s, 2},  // a day of 23 hours
             DayDiffCase{u"2019-10-26 12:00:00"_s, u"2019-10-28 12:00:00"_s, 2},  // a day of 25 hours
             DayDiffCase{u"2019-03-23 12:00:00"_s, u"2019-03-20 12:00:00"_s, -2}, // truncated, hour added
         }) {
        EXPECT_EQ(DayDiff(local(a), local(b)), days) << a.toStdString();
    }
    const Instant noon = local(u"2019-03-22 12:00:00"_s);
    EXPECT_EQ(SecondDiff(noon, noon + 60999ms), 60);
    EXPECT_EQ(SecondDiff(noon + 60999ms, noon), -60);
    EXPECT_EQ(XMLDateToStr(DateToDayBoundary(noon, false)), u"2019-03-22T23:59:59+01:00"_s);
    EXPECT_EQ(getDateMonthAgo(local(u"2019-05-31 12:00:00"_s), 3), local(u"2019-02-28 12:00:00"_s));
    EXPECT_EQ(FirstDayOfThisYear(noon), local(u"2019-01-01 00:00:00"_s));
}

TEST(Dates, AgeCountsBirthdaysReached) {
    const Instant leapDay = local(u"1960-02-29 08:00:00"_s);
    EXPECT_EQ(GetAge(leapDay, local(u"2019-02-28 12:00:00"_s)), 58);
    EXPECT_EQ(GetAge(leapDay, local(u"2019-03-01 00:00:00"_s)), 59);
    EXPECT_EQ(GetAge(local(u"1960-05-05 23:00:00"_s), local(u"2019-05-05 01:00:00"_s)), 59);
}

TEST(Dates, LocalDayAndMinuteFollowTheZone) {
    const auto place = [](const char* text) { return LocalZone{}.dayMinute(XMLStrToDate(text)); };
    EXPECT_EQ(dayText(place("2019-03-31T23:30:00+00:00").day), u"2019/04/01"_s);
    EXPECT_EQ(place("2019-03-31T23:30:00+00:00").minute, 90);
    EXPECT_EQ(dayText(place("1969-12-31T22:59:00+00:00").day), u"1969/12/31"_s);
    EXPECT_EQ(place("1969-12-31T22:59:00+00:00").minute, 23 * 60 + 59);
    EXPECT_EQ(dayText(LocalZone{}.day({})), QString{});
}

} // namespace
} // namespace zel

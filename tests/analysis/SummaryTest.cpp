#include "analysis/Summary.h"

#include "analysis/Sample.h"

#include <gtest/gtest.h>

#include <ranges>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

Spread spreadOf(std::initializer_list<std::uint32_t> values, int times = 1) {
    Spread spread;
    for (int i = 0; i < times; ++i)
        for (const std::uint32_t value : values)
            spread.add(value);
    return spread;
}

/// Such as "5.0 2 9 2.1".
std::string words(const Spread& spread) {
    if (spread.count() == 0) return "none";
    return u"%1 %2 %3 %4"_s.arg(spread.mean().withTenths())
        .arg(spread.minimum())
        .arg(spread.maximum())
        .arg(spread.deviationWithTenths())
        .toStdString();
}

TEST(Spread, isThatOfASample) {
    Spread half = spreadOf({120}, 15);
    half.add(121); // variance 1/16
    const std::pair<Spread, const char*> cases[] = {
        {spreadOf({}), "none"},
        {spreadOf({131}), "131.0 131 131 "},
        {spreadOf({120, 120}), "120.0 120 120 0.0"},
        {spreadOf({120, 130}), "125.0 120 130 7.1"},         // root of 50
        {spreadOf({2, 4, 4, 4, 5, 5, 7, 9}), "5.0 2 9 2.1"}, // root of 32/7, which is 2.138
        {spreadOf({9, 2, 4, 7, 5, 4, 5, 4}), "5.0 2 9 2.1"},
        {half, "120.1 120 121 0.3"}, // 0.25, halves upwards
        {spreadOf({100, 101, 102}), "101.0 100 102 1.0"},
        {spreadOf({60, 300}, 50'000), "180.0 60 300 120.0"}, // 120 times the root of 100000/99999
        {spreadOf({UINT32_MAX, UINT32_MAX}), "4294967295.0 4294967295 4294967295 0.0"},
    };
    for (const auto& [spread, expected] : cases)
        EXPECT_EQ(words(spread), expected);
}

TEST(Summary, countsTheDatedReadingsOfThePeriodThatAreNotLeftOut) {
    // 08:00, 11:59, 12:00, 20:00, and six that do not count.
    ReadingList readings{readingAt("2019-03-01", 134, 84),
                         readingAt("2019-03-01 11:59", 136, 80),
                         readingAt("2019-03-01 12:00", 120, 86),
                         readingAt("2019-03-31 23:59:59", 128, 70),
                         readingAt("2019-02-28 23:59:59"),
                         readingAt("2019-04-01"),
                         readingAt("2000-01-01"),
                         readingAt("2019-03-05"),
                         readingAt("2019-03-06"),
                         readingAt("2019-03-07", 0, 70)};
    readings[7].exclusion = u""_s;
    readings[8].ReadingDate.reset();
    readings[8].day = noDay;
    const std::uint32_t codes[] = {4, 5, 2, 0, 5, 5, 5, 5, 5, 5};
    for (std::size_t i = 0; i < readings.size(); ++i) {
        readings[i].Arrhythmia = codes[i];
        readings[i].pulse = 60 + static_cast<std::uint32_t>(i);
    }
    const Period march = during("2019-03-01", "2019-03-31").period;
    const SummaryFigures figures = calcSummary(readings, march);
    // SYS: mean 518/4, squares of 4.5, 6.5, 9.5, 1.5 from it are 155, a third of it 51.67; DIA 320/4 and
    // (16 + 0 + 36 + 100)/3 = 50.67; pulse 246/4 and (2.25 + 0.25 + 0.25 + 2.25)/3 = 1.67.
    EXPECT_EQ(words(figures.all.sys), "129.5 120 136 7.2");
    EXPECT_EQ(words(figures.all.dia), "80.0 70 86 7.1");
    EXPECT_EQ(words(figures.all.pulse), "61.5 60 63 1.3");
    EXPECT_EQ(words(figures.morning.sys), "135.0 134 136 1.4");
    EXPECT_EQ(words(figures.evening.dia), "78.0 70 86 11.3");
    EXPECT_EQ(figures.afib.flagged, 1);
    EXPECT_EQ(figures.afib.examined, 2);
    EXPECT_EQ(figures.pad.flagged, 1);
    EXPECT_EQ(figures.pad.examined, 1);
    const std::tuple<std::uint32_t, std::uint32_t, int> limits[] = {
        {136, 90, 1}, {137, 90, 0}, {136, 86, 2}, {136, 84, 3}, {0, 80, 3}, {128, 0, 3}, {0, 0, 0}};
    for (const auto& [sys, dia, high] : limits)
        EXPECT_EQ(countHighReadings(readings, march, {sys, dia}), high) << sys << '/' << dia;
    EXPECT_EQ(calcSummary(readings, during("2019-06-01", "2019-06-30").period).all.count(), 0U);
}

/// "MM-dd: mornings/evenings" for each day.
std::string days(const ReadingList& readings, const char* from, const char* to) {
    QStringList all;
    for (const DayHalves& day : calcLastDays(readings, during(from, to).period))
        all += u"%1: %2/%3"_s.arg(dayText(day.day, u"MM-dd"_s))
                   .arg(day.morning.count())
                   .arg(day.evening.count());
    return all.join(u", "_s).toStdString();
}

TEST(Summary, lastDaysEndWithAReadingAndBeginInThePeriod) {
    ReadingList readings = readingsAt({"2019-03-02 08:00", "2019-03-03 08:00", "2019-03-16 07:00",
                                       "2019-03-16 11:59", "2019-03-16 12:00", "2019-03-20 08:00"});
    readings.push_back(readingAt("2019-03-18"));
    readings.back().exclusion = u"cuff"_s;
    EXPECT_EQ(days(readings, "2019-03-15", "2019-03-19"), "03-15: 0/0, 03-16: 2/1");
    EXPECT_EQ(days(readings, "2019-03-16", "2019-03-16"), "03-16: 2/1");
    EXPECT_EQ(days(readings, "2019-03-10", "2019-03-12"), "");
    EXPECT_EQ(days({}, "2019-03-10", "2019-03-12"), "");
    const std::string all = days(readings, "2019-03-01", "2019-03-19");
    EXPECT_TRUE(all.starts_with("03-03: 1/0, 03-04: 0/0")) << all;
    EXPECT_EQ(std::ranges::count(all, ':'), 14);
    EXPECT_EQ(lastDayOf(readings, during("2019-03-01", "2019-03-31").period), readings[5].day);
}

TEST(Summary, commentsOfThePeriodBeginWithTheNewest) {
    Sample sample;
    sample.comment("2019-02-01", "2019-03-01"); // ends on the first day
    sample.comment("2019-02-01", "2019-02-28");
    sample.comment("2019-03-10", "2019-03-12");
    sample.comment("2019-03-10", "2019-03-11");
    sample.comment("2019-03-31", "2019-04-30"); // begins on the last one
    sample.comment("2019-04-01", "2019-04-02");
    sample.comment("2019-02-01", "2019-05-01"); // covers it
    sample.comment("2019-04-05", "2019-03-20"); // the wrong way round
    sample.comment("2019-03-15", "2019-03-15");
    sample.comments[8]->endDay = noDay;
    sample.comment("2019-03-16", "2019-03-16");
    sample.comments[9]->beginDay = sample.comments[9]->endDay = noDay;
    std::string order;
    for (const CommentModel* comment :
         commentsOfPeriod(sample.comments, during("2019-03-01", "2019-03-31").period))
        order += std::to_string(
                     std::ranges::find(sample.comments, comment, [](const auto& each) { return each.get(); })
                     - sample.comments.begin())
                 + ' ';
    EXPECT_EQ(order, "4 7 8 3 2 6 0 ");
}

} // namespace
} // namespace zel

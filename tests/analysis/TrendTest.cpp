#include "analysis/Trend.h"

#include "analysis/Sample.h"
#include "support/InZone.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

QString text(const std::optional<TrendBand>& band) {
    return band ? u"%1 %2 %3"_s.arg(band->low).arg(band->median).arg(band->high) : u"none"_s;
}

template <class Band = TrendBand>
std::string words(const Trend& trend, Band TrendPoint::*measure = &TrendPoint::sys) {
    QStringList points;
    for (const TrendPoint& point : trend.points)
        points += dayText(point.begin, u"MM-dd"_s) + u'/' + dayText(point.end, u"MM-dd"_s)
                  + u" (%1) "_s.arg(point.count) + text(point.*measure);
    return points.join(u", "_s).toStdString();
}

ReadingList valuesOn(const char* day, std::initializer_list<std::uint32_t> values) {
    ReadingList readings;
    for (const std::uint32_t value : values)
        readings.push_back(readingAt(day, value, value / 2));
    return readings;
}

TEST(Trend, StepComesNearestTo30To120Points) {
    using enum TrendStep;
    const std::pair<int, TrendStep> cases[] = {
        {1, day},    {30, day},    {120, day},    {158, day}, {159, week}, {365, week},   {840, week},
        {875, week}, {876, month}, {2557, month}, {0, day},   {-5, day},   {40000, month}};
    for (const auto& [days, step] : cases)
        EXPECT_EQ(trendStepFor(days), step) << days;
}

TEST(Trend, BandIsFromThe10thToThe90thPercentile) {
    const auto week = during("2026-03-01", "2026-03-07");
    const auto bandOf = [&week](std::initializer_list<std::uint32_t> values) {
        return words(calcTrend(valuesOn("2026-03-02 08:00", values), week));
    };
    EXPECT_EQ(bandOf({120}), "03-02/03-02 (1) 120 120 120");
    EXPECT_EQ(bandOf({140, 120}), "03-02/03-02 (2) 120 130 140");
    EXPECT_EQ(bandOf({140, 100, 120, 110}), "03-02/03-02 (4) 100 115 140") << "few: all of them";
    EXPECT_EQ(bandOf({140, 100, 120, 110, 130}), "03-02/03-02 (5) 104 120 136");
    EXPECT_EQ(bandOf({100, 110, 120, 130, 140, 150, 160, 170, 180, 190, 999}),
              "03-02/03-02 (11) 110 150 190");
}

TEST(Trend, ManyReadingsOfAStepHaveTheSameBandInAnyOrder) {
    for (const std::uint32_t highest : {199U, 511U, 512U, 999U}) {
        ReadingList readings;
        for (std::uint32_t value = 0; value < 100; ++value)
            readings.push_back(readingAt("2026-03-02", 100 + value * 37 % 100));
        readings.push_back(readingAt("2026-03-02", highest));
        EXPECT_EQ(words(calcTrend(readings, during("2026-03-01", "2026-03-07"))),
                  "03-02/03-02 (101) 110 150 190");
    }
}

TEST(Trend, EachStepCountsItsOwnReadingsOnly) {
    ReadingList readings;
    for (const std::uint32_t value : {700U, 120U, 900U, 600U, 1U})
        readings.push_back(readingAt("2026-03-02", value));
    for (const std::uint32_t value : {130U, 90U, 511U, 512U, 150U, 110U})
        readings.push_back(readingAt("2026-03-03", value));
    readings.push_back(readingAt("2026-03-04", 800));
    const std::string points = "03-02/03-02 (5) 48.6 600 820, 03-03/03-03 (6) 100 140 511.5, "
                               "03-04/03-04 (1) 800 800 800";
    const auto days = during("2026-03-01", "2026-03-07");
    EXPECT_EQ(words(calcTrend(readings, days)), points);
    std::ranges::reverse(readings);
    EXPECT_EQ(words(calcTrend(readings, days)), points) << "the order of the list does not matter";
}

TEST(Trend, StepsAreDaysOrWeeksFromMondayOrMonths) {
    const ReadingList readings = readingsAt({"2026-03-02 08:00", "2026-02-28 20:00", "2026-03-01 23:59:59",
                                             "2025-12-31 12:00", "2000-01-01", "2026-03-08", "2024-02-29"});
    EXPECT_EQ(words(calcTrend(readings, during("2026-02-01", "2026-03-31"))),
              "02-28/02-28 (1) 120 120 120, 03-01/03-01 (1) 120 120 120, 03-02/03-02 (1) 120 120 120, "
              "03-08/03-08 (1) 120 120 120");
    EXPECT_EQ(words(calcTrend(readings, during("2025-07-01", "2026-03-31"))),
              "12-29/01-04 (1) 120 120 120, 02-23/03-01 (2) 120 120 120, 03-02/03-08 (2) 120 120 120");
    EXPECT_EQ(words(calcTrend(readings, during("1999-01-01", "2026-03-31"))),
              "02-01/02-29 (1) 120 120 120, 12-01/12-31 (1) 120 120 120, 02-01/02-28 (1) 120 120 120, "
              "03-01/03-31 (3) 120 120 120")
        << "an undated reading has no place in time";
    ReadingSelection evenings = during("2026-02-01", "2026-03-31");
    evenings.view = ViewSelection::pmOnly;
    EXPECT_EQ(calcTrend(readings, evenings).points.size(), 2U);
    EXPECT_TRUE(calcTrend({}, evenings).points.empty());
}

TEST(Trend, MorningsAndEveningsAreSeriesOfTheirOwn) {
    ReadingList readings = readingsAt({"2026-03-02 08:00", "2026-03-02 11:59:59", "2026-03-02 12:00",
                                       "2026-03-03 20:00", "2026-04-01 20:00", "2026-03-04 20:00"});
    for (const std::size_t elsewhere : {1U, 2U, 3U, 4U, 5U}) // the last but one beyond the period
        readings[elsewhere].isOfOtherZone = true;
    readings.back().sys = 0; // not of the trend either
    using enum ViewSelection;
    const struct {
        ViewSelection view;
        bool apart;
        std::string series;
        int ofOtherZone;
    } cases[]{{custom, false, "all: 2", 0},       {custom, true, "am: 1, pm: 2", 3},
              {viewAll, true, "am: 1, pm: 2", 3}, {amOnly, false, "am: 1", 1},
              {amOnly, true, "am: 1", 1},         {pmOnly, true, "pm: 2", 2},
              {ViewSelection::none, true, "", 0}, {ViewSelection::none, false, "all: 0", 0}};
    for (const auto& [view, apart, series, ofOtherZone] : cases) {
        ReadingSelection selection = during("2026-03-01", "2026-03-31");
        selection.view = view;
        QStringList found;
        const TrendSeriesList list = calcTrendSeries(readings, selection, apart);
        EXPECT_EQ(list.ofOtherZone, ofOtherZone) << static_cast<int>(view) << apart;
        for (const TrendSeries& one : list.series)
            found += u"%1: %2"_s.arg(one.half == amOnly   ? u"am"_s
                                     : one.half == pmOnly ? u"pm"_s
                                                          : u"all"_s)
                         .arg(one.points.size());
        EXPECT_EQ(found.join(u", "_s).toStdString(), series) << static_cast<int>(view) << apart;
    }
    EXPECT_EQ(calcTrendSeries({}, during("2026-01-01", "2026-12-31"), true).step, TrendStep::week)
        << "without readings, too";
}

/// The night of 25 October 2026: 25 hours, of which the clocks show the third one twice.
TEST(Trend, AReadingIsOfItsDayAndHalfAlsoWhereTheClocksChange) {
    using namespace std::chrono;
    const InZone zone("Europe/Berlin");
    ReadingList readings;
    for (const int utc : {-90, 30, 90, 1350, 1380}) { // in minutes: 00:30, 02:30 twice, 23:30, 00:00
        ReadingModel& made = readings.emplace_back(readingAt("2026-10-25"));
        made.ReadingDate = sys_days{2026y / October / 25} + minutes{utc};
        made.postInit(nullptr, {}, LocalZone{});
    }
    const auto month = during("2026-10-01", "2026-10-31");
    EXPECT_EQ(words(calcTrend(readings, month)), "10-25/10-25 (4) 120 120 120, 10-26/10-26 (1) 120 120 120");
    const auto halves = calcTrendSeries(readings, month, true).series;
    ASSERT_EQ(halves.size(), 2U);
    EXPECT_EQ(words({.points = halves[0].points}),
              "10-25/10-25 (3) 120 120 120, 10-26/10-26 (1) 120 120 120");
    EXPECT_EQ(words({.points = halves[1].points}), "10-25/10-25 (1) 120 120 120");
    EXPECT_EQ(calcTrend(readings, during("2026-10-25", "2026-10-25")).points.size(), 1U);
}

TEST(Trend, LeavesOutWhatTheUserHasExcludedAndWhatHasNoPressures) {
    ReadingList readings = valuesOn("2026-03-02", {100, 140, 0, 1, 1000});
    readings.front().exclusion = u"cuff slipped"_s;
    readings[1].pulse = 0;
    const Trend trend = calcTrend(readings, during("2026-03-01", "2026-03-31"));
    EXPECT_EQ(words(trend), "03-02/03-02 (1) 140 140 140");
    EXPECT_EQ(words(trend, &TrendPoint::pulse), "03-02/03-02 (1) none");
    readings.push_back(readingAt("2026-03-02", 140, 80));
    EXPECT_EQ(words(calcTrend(readings, during("2026-03-01", "2026-03-31")), &TrendPoint::pulse),
              "03-02/03-02 (2) 60 60 60");
}

TEST(Trend, EachMeasureIsItsOwn) {
    const Trend trend = calcTrend(valuesOn("2026-03-02", {100, 140}), during("2026-03-01", "2026-03-31"));
    EXPECT_EQ(words(trend, &TrendPoint::dia), "03-02/03-02 (2) 50 60 70");
    EXPECT_EQ(words(trend, &TrendPoint::pulse), "03-02/03-02 (2) 60 60 60");
}

} // namespace
} // namespace zel

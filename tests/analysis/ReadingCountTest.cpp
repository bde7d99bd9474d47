#include "analysis/ReadingCount.h"

#include "analysis/Histogram.h"
#include "analysis/Sample.h"
#include "analysis/Statistic.h"
#include "support/RealTexts.h"

#include <gtest/gtest.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// Of March 2019: two in the morning, one later. Beside: one of April, two undated, one of the year 1, and
/// one whose file gives no date.
ReadingList marchAndOthers() {
    ReadingList readings = readingsAt({"2000-01-01", "2019-03-02 08:00", "2019-03-02 11:59", "0001-01-01",
                                       "2019-03-31 12:00", "2019-04-01", "2000-01-01 09:00", "2019-03-03"});
    readings.back().ReadingDate = std::nullopt;
    readings.back().postInit(nullptr, {}, LocalZone{});
    return readings;
}

struct CountCase {
    ViewSelection view;
    bool includeUndated;
    ReadingCount list;
    ReadingCount statistic;
};

const CountCase countCases[] = {
    {ViewSelection::custom, false, {3, 1, 0, 0, 3, 1}, {3, 1, 0, 0, 3, 1}},
    {ViewSelection::custom, true, {6, 1, 0, 0, 0, 1}, {5, 1, 0, 0, 0, 2}},
    {ViewSelection::amOnly, false, {2, 1, 0, 1, 3, 1}, {3, 1, 0, 0, 3, 1}},
    {ViewSelection::pmOnly, true, {4, 1, 2, 0, 0, 1}, {5, 1, 0, 0, 0, 2}},
};

TEST(ReadingCount, SaysWhatEachViewShowsAndWhyItLeavesTheOthersOut) {
    const ReadingList readings = marchAndOthers();
    for (const CountCase& c : countCases) {
        SCOPED_TRACE(static_cast<int>(c.view));
        Sample sample;
        sample.selection = during("2019-03-01", "2019-03-31");
        sample.selection.view = c.view;
        sample.selection.includeUndated = c.includeUndated;
        sample.readings = readings;
        EXPECT_EQ(countReadings(readings, sample.selection, isListed), c.list);
        EXPECT_EQ(countReadings(readings, sample.selection, isInStatistic), c.statistic);
        const ReadingCount chart = countReadings(readings, sample.selection, isInChart);
        EXPECT_EQ(chart.counted, c.list.counted - (c.includeUndated ? 3 : 0));
        EXPECT_EQ(chart.undated, 3) << "wanted or not";
        EXPECT_EQ(sample.rows().rows.size(), static_cast<std::size_t>(c.list.counted));
        EXPECT_EQ(calcStatistic(readings, sample.selection, true).count,
                  static_cast<float>(c.statistic.counted));
        EXPECT_EQ(calcHistogram(readings, sample.selection).total,
                  static_cast<float>(countReadings(readings, sample.selection, isCounted).counted));
    }
}

TEST(ReadingCount, WhatIsExcludedIsListedAndCountsNowhere) {
    Sample sample;
    sample.selection = during("2019-03-01", "2019-03-31");
    sample.selection.includeUndated = true;
    sample.readings = readingsAt({"2019-03-02 08:00", "2019-03-03", "2000-01-01", "2019-04-01"});
    for (ReadingModel& reading : sample.readings)
        reading.exclusion = u""_s;
    sample.readings.front().exclusion = QString();
    EXPECT_EQ(countReadings(sample.readings, sample.selection, isListed),
              (ReadingCount{.counted = 3, .outsidePeriod = 1, .listedExcluded = 2}));
    for (const CountRule rule : {isInStatistic, isCounted})
        EXPECT_EQ(countReadings(sample.readings, sample.selection, rule),
                  (ReadingCount{1, 1, 0, 0, 0, 0, 2}));
    EXPECT_EQ(countReadings(sample.readings, sample.selection, isInChart),
              (ReadingCount{1, 1, 0, 0, 1, 0, 1}));
    EXPECT_EQ(sample.rows().rows.size(), 3U);
    EXPECT_EQ(calcStatistic(sample.readings, sample.selection, true).count, 1);
    EXPECT_EQ(calcHistogram(sample.readings, sample.selection).total, 1);
}

TEST(ReadingCount, TheListTellsTheHalfOfTheDayAndOthersTellWhatIsExcluded) {
    ReadingSelection selection = during("2019-03-01", "2019-03-31");
    ReadingList readings = readingsAt({"2019-03-02 08:00", "2019-03-03 20:00"});
    for (ReadingModel& reading : readings)
        reading.exclusion = u""_s;
    const struct {
        ViewSelection view;
        CountRule rule;
        ReadingCount count;
    } cases[] = {
        {ViewSelection::amOnly, isListed, {.counted = 1, .fromNoon = 1, .listedExcluded = 1}},
        {ViewSelection::pmOnly, isListed, {.counted = 1, .beforeNoon = 1, .listedExcluded = 1}},
        {ViewSelection::amOnly, isCounted, {.excluded = 2}},
        {ViewSelection::pmOnly, isInChart, {.excluded = 2}},
        {ViewSelection::amOnly, isInStatistic, {.excluded = 2}},
        {ViewSelection::custom, isCounted, {.excluded = 2}},
    };
    for (const auto& [view, rule, count] : cases) {
        selection.view = view;
        EXPECT_EQ(countReadings(readings, selection, rule), count) << static_cast<int>(view);
    }
}

TEST(ReadingCount, WhatHasNoPressuresIsToldWhereMeansAreTaken) {
    ReadingSelection selection = during("2019-03-01", "2019-03-31");
    ReadingList readings = readingsAt({"2019-03-02 08:00", "2019-03-03 20:00"});
    readings.back().sys = 0;
    EXPECT_EQ(countReadings(readings, selection, isInStatistic), (ReadingCount{.counted = 2}));
    for (const CountRule rule : {isInSummary, isInTrend})
        EXPECT_EQ(countReadings(readings, selection, rule), (ReadingCount{.counted = 1, .unmeasured = 1}));
    selection.view = ViewSelection::amOnly;
    EXPECT_EQ(countReadings(readings, selection, isInTrend), (ReadingCount{.counted = 1, .fromNoon = 1}));
}

TEST(ReadingCount, SaysEachReasonThatHoldsForOneReadingAndNoOther) {
    const RealTexts texts;
    const std::pair<ReadingCount, const char*> cases[] = {
        {{.counted = 1}, "1 reading"},
        {{.counted = 2, .listedExcluded = 1}, "2 readings, 1 of them left out"},
        {{.outsidePeriod = 1}, "0 readings; 1 outside the period not counted"},
        {{.counted = 1, .unmeasured = 2}, "1 reading; 2 without pressures not counted"},
        {{.beforeNoon = 1, .fromNoon = 1}, "0 readings; 1 before noon, 1 from noon on not counted"},
        {{.undated = 1, .withoutDate = 1, .excluded = 1},
         "0 readings; 1 left out, 1 undated one, 1 without any date not counted"},
    };
    for (const auto& [count, words] : cases)
        EXPECT_EQ(describe(count).toStdString(), words);
}

} // namespace
} // namespace zel

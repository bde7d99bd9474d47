#include "analysis/Correlation.h"
#include "analysis/Histogram.h"
#include "analysis/Sample.h"
#include "analysis/Statistic.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

constexpr std::uint32_t largest = 4'294'967'295U;

/// An undated reading, one in the morning, two later, one that has no date, and one of another year.
ReadingList sample() {
    return {readingAt("2000-01-01", 200, 70),          readingAt("2019-03-02 11:59", 120, 80),
            readingAt("2019-03-02 12:00", 121, 80),    readingAt("0001-01-01", 90, 50),
            readingAt("2019-03-31 23:59:59", 139, 90), readingAt("2019-04-01", 250, 99)};
}

QString cells(const MeasureStatistic& measure) {
    return maxString(static_cast<std::uint32_t>(measure.average)) + u' ' + minString(measure.minimum) + u' '
           + maxString(measure.maximum);
}

TEST(Statistic, CoversThePeriodAndTheUndatedReadingsIfWanted) {
    struct Case {
        const char* to;
        ViewSelection view;
        bool includeUndated;
        const char* sys;
    };
    const Case cases[] = {
        {"2019-03-02", ViewSelection::custom, false, "121 120 121"}, // 120.5 is rounded away from 0
        {"2019-03-02", ViewSelection::pmOnly, false, "121 120 121"},
        {"2019-03-31", ViewSelection::viewAll, false, "127 120 139"},
        {"2019-03-02", ViewSelection::amOnly, true, "147 120 200"},
        {"2019-02-01", ViewSelection::custom, false, "n/a n/a n/a"},
        {"2019-02-01", ViewSelection::custom, true, "200 200 200"},
    };
    for (const Case& c : cases) {
        ReadingSelection selection = during("0001-01-01", c.to);
        selection.view = c.view;
        selection.includeUndated = c.includeUndated;
        EXPECT_EQ(cells(calcStatistic(sample(), selection, true).sys), QString::fromLatin1(c.sys)) << c.to;
    }
}

TEST(Statistic, ShowsOneOfTwoMeasuresAndTakesAnyValue) {
    ReadingList readings = readingsAt({"2019-03-02", "2019-03-03"});
    readings[0].map = 93;
    readings[0].pp = 40;
    readings[1].map = readings[1].sys = 0;
    readings[1].pp = readings[1].dia = readings[1].pulse = largest;
    readings[0].pulse = largest;
    const auto selection = during("2019-03-01", "2019-03-31");
    const auto figures = calcStatistic(readings, selection, true);
    EXPECT_EQ(cells(figures.mapOrPP), u"47 0 93"_s);
    EXPECT_EQ(figures.sys.minimum, 0U);
    EXPECT_EQ(figures.dia.minimum, 80U);
    EXPECT_EQ(figures.dia.maximum, largest);
    EXPECT_EQ(minString(figures.pulse.minimum), u"n/a"_s);
    EXPECT_EQ(minString(32766), u"32766"_s);
    EXPECT_GT(figures.pulse.average, 0);
    EXPECT_EQ(calcStatistic(readings, selection, false).mapOrPP.minimum, 40U);
}

/// Systolic values of the counted readings.
std::string counted(const ReadingSelection& selection) {
    std::string values;
    for (const CorrelationPoint& point : calcCorrelation(sample(), selection))
        values += std::to_string(point.sys) + ' ';
    return values;
}

TEST(Pictures, CountTheViewsReadingsAndTheUndatedOnesIfWanted) {
    ReadingSelection selection = during("2019-03-02", "2019-03-31");
    EXPECT_EQ(counted(selection), "120 121 139 ");
    EXPECT_EQ(calcHistogram(sample(), selection).total, 3);
    selection.view = ViewSelection::pmOnly;
    EXPECT_EQ(counted(selection), "121 139 ");
    selection.includeUndated = true;
    EXPECT_EQ(counted(selection), "200 121 139 ");
    EXPECT_EQ(calcHistogram(sample(), selection).total, 3);
    selection.view = ViewSelection::amOnly;
    EXPECT_EQ(counted(selection), "200 120 ");
    selection.view = ViewSelection::none;
    EXPECT_EQ(counted(selection), "200 ");
}

TEST(Correlation, HasEachPairOnce) {
    const std::vector<CorrelationPoint> points{{120, 80}, {80, 120}, {largest, 0}, {0, largest}, {1, 0},
                                               {0, 1},    {0, 256},  {0, 1 << 16}, {0, 1U << 31}};
    ReadingList readings;
    for (int time = 1; time <= 2; ++time)
        for (const CorrelationPoint& point : points)
            readings.push_back(readingAt("2019-03-02", point.sys, point.dia));
    EXPECT_EQ(calcCorrelation(readings, during("2019-03-01", "2019-03-31")), points);
}

TEST(Histogram, HasClassesOfTen) {
    const ReadingList readings{readingAt("2019-03-02", 139, 0), readingAt("2019-03-03", 140, 299),
                               readingAt("2019-03-04", 300, 300), readingAt("2019-03-05", largest, largest)};
    const HistogramFigures figures = calcHistogram(readings, during("2019-03-01", "2019-03-31"));
    const auto classes = [](const HistogramMeasure& measure) {
        std::string text;
        for (std::size_t i = 0; i < measure.share.size(); ++i)
            if (measure.share[i] > 0)
                text += std::to_string(i) + ':' + std::to_string(std::lround(measure.share[i] * 100)) + ' ';
        return text + '/' + std::to_string(measure.percentDivisions);
    };
    EXPECT_EQ(figures.total, 4);
    EXPECT_EQ(classes(figures.sys), "13:25 14:25 /3");
    EXPECT_EQ(classes(figures.dia), "0:25 29:25 /3");
    EXPECT_EQ(classes(figures.pulse), "6:100 /10");
    const HistogramFigures none = calcHistogram(readings, during("2018-03-01", "2018-03-31"), figures);
    EXPECT_EQ(classes(none.sys), "/3");
    EXPECT_EQ(classes(none.pulse), "/10");
    EXPECT_EQ(classes(calcHistogram({}, {}).dia), "/8");
}

TEST(Histogram, AxisLeavesRoomAndIsOdd) {
    const std::pair<float, int> cases[] = {{0.0F, 1},  {0.05F, 1}, {0.06F, 3}, {0.25F, 3},  {0.26F, 5},
                                           {0.34F, 5}, {0.8F, 9},  {0.85F, 9}, {0.86F, 10}, {1.0F, 10}};
    for (const auto& [share, divisions] : cases)
        EXPECT_EQ(tuneDivide(share), divisions) << share;
}

} // namespace
} // namespace zel

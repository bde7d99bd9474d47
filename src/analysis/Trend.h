#pragma once
// The course of pressure and pulse over a long time: medians and where most readings lie, by day, week or
// month.

#include "analysis/ReadingSelection.h"
#include "store/RecordLinks.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace zel {

/// What a point of the trend stands for: a day, a week from Monday on, a month of the calendar.
enum class TrendStep : std::int32_t { day, week, month };

/// The step with which a period of so many days comes nearest to 30 to 120 points: the day up to 158 days,
/// the week up to 875, then the month.
[[nodiscard]] TrendStep trendStepFor(std::int64_t days);

/// Of one measure. Low and high are the 10th and the 90th percentile, between two readings in proportion;
/// those of fewer than fewestForPercentiles readings are the lowest and the highest one.
struct TrendBand {
    double low = 0;
    double median = 0;
    double high = 0;
    std::size_t count = 0; ///< of the readings that have the measure
};

inline constexpr std::size_t fewestForPercentiles = 5;

struct TrendPoint {
    DayNumber begin = noDay; ///< first and last day that it stands for, also beyond the period
    DayNumber end = noDay;
    std::size_t count = 0;
    TrendBand sys; ///< mmHg
    TrendBand dia;
    std::optional<TrendBand> pulse; ///< beats per minute; none where no reading has one
};

struct Trend {
    TrendStep step = TrendStep::day;
    std::vector<TrendPoint> points; ///< in time; a step without a reading has none
};

/// Of the readings that the chart has, too.
[[nodiscard]] Trend calcTrend(const ReadingList& readings, const ReadingSelection& selection);

/// The points of all readings or of one half of the day.
struct TrendSeries {
    ViewSelection half = ViewSelection::custom; ///< amOnly: the mornings; pmOnly: the evenings; else all
    std::vector<TrendPoint> points;
};

struct TrendSeriesList {
    TrendStep step = TrendStep::day;
    std::vector<TrendSeries> series; ///< one, or the mornings and then the evenings
    /// Readings stored in another time zone than the computer's, by whose clock they are of their half of the
    /// day; 0 where no halves are told apart.
    int ofOtherZone = 0;
};

/// One series of what the selection shows, or \p apart one of each half of the day that it shows.
[[nodiscard]] TrendSeriesList calcTrendSeries(const ReadingList& readings, const ReadingSelection& selection,
                                              bool apart);

} // namespace zel

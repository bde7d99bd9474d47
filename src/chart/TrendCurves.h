#pragma once
// The lines and bands of a trend: each measure of each half of the day is one of them.

#include "analysis/Trend.h"
#include "chart/ChartScale.h"
#include "chart/OffScale.h"
#include "chart/Picture.h"

#include <span>

namespace zel {

enum class TrendMeasure : std::int32_t { sys, dia, pulse };

/// How a line is told from the others, in colour and without.
struct TrendLook {
    QColor color;
    std::vector<double> dashes; ///< as Curve has them
};
/// What a line is drawn with.
struct TrendAmong {
    bool bothHalves = false; ///< the other half of the day has lines, too
    bool black = false;      ///< on paper
};
[[nodiscard]] TrendLook trendLook(TrendMeasure measure, ViewSelection half, const TrendAmong& among);

/// "SYS", "SYS morning".
[[nodiscard]] QString trendName(TrendMeasure measure, ViewSelection half);

/// A step as one measure has it.
struct MeasuredStep {
    DayNumber begin = noDay; ///< as TrendPoint has them
    DayNumber end = noDay;
    TrendBand band;
};
/// In time, without those that have readings, but none with the measure.
[[nodiscard]] std::vector<MeasuredStep> measuredSteps(const TrendSeries& series, TrendMeasure measure);
[[nodiscard]] double trendY(const ChartScale& scale, TrendMeasure measure, double value);
/// Where days lie from left to right, as far as they are the period's.
struct TrendSpan {
    double from = 0; ///< begin of the first day
    double to = 0;   ///< end of the last one
};
[[nodiscard]] TrendSpan trendSpan(const TimeScale& time, DayNumber begin, DayNumber end,
                                  const LocalZone& zone);
/// The middle of what the point stands for, as far as it lies in the period.
[[nodiscard]] double trendX(const TimeScale& time, DayNumber begin, DayNumber end, const LocalZone& zone);

/// Lines that break where a step has no reading with the measure. Ends that are as near as the chart joins
/// readings are linked by fine dots; farther apart, nothing stands between them: it would look like a course
/// that nobody measured.
struct TrendCurves {
    std::vector<Area> bands;
    std::vector<Curve> lines; ///< of the medians; a point without neighbours has none
    std::vector<Curve> links;
    std::vector<Circle> marks;
};
[[nodiscard]] TrendCurves trendCurves(const TrendSeries& series, TrendMeasure measure,
                                      const ChartScale& scale, const LocalZone& zone,
                                      const TrendAmong& among);

/// Whether a line of it has ends that are linked.
[[nodiscard]] bool hasLinks(const TrendSeries& series);

/// The steps with a band that reaches beyond a scale, each once.
[[nodiscard]] OffScale trendOffScale(std::span<const TrendSeries> series,
                                     std::span<const TrendMeasure> measures, const ScaleRange& range);

} // namespace zel

#pragma once
// The values at the left of a trend's plot.

#include "chart/ChartScale.h"
#include "chart/TrendCurves.h"

#include <span>

namespace zel {

/// The tens between which everything lies that the series and the limits in \p usual have there; 40 or more
/// of them. \p usual where there is nothing.
[[nodiscard]] ScaleRange fittedRange(std::span<const TrendSeries> series,
                                     std::span<const TrendMeasure> measures,
                                     std::span<const std::uint32_t> limits, const ScaleRange& usual);

/// Lines from the bottom of the range up, and beside the plot their numbers, none of which reaches above its
/// top: there is what stands above.
void drawTrendScale(Picture& picture, const ChartScale& scale, const ScaleRange& range);
/// In the column of the numbers, as large as it has room for, with its middle at \p y.
void drawTrendUnit(Picture& picture, const ChartScale& scale, const QString& unit, double y);

} // namespace zel

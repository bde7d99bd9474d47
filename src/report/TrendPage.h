#pragma once

#include "chart/Picture.h"
#include "report/GraphPage.h"
#include "report/ReportSource.h"

namespace zel {

/// Limits by where they lie.
struct TrendLimits {
    Limits shown;
    Limits hidden; ///< outside the trend's scale
};
[[nodiscard]] TrendLimits trendLimitsOf(const Limits& limits);

/// The trend of the reporting period in black and white, with the comments of the period.
void drawTrendPage(Picture& picture, const ReportSource& report, const Rect& rect);
/// How to read it, in two lines of which the lower one stands on \p at.
void drawTrendLegend(Picture& picture, const ReportSource& report, Point at, double width);

} // namespace zel

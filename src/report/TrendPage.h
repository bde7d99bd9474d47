#pragma once

#include "chart/Picture.h"
#include "report/ReportSource.h"

namespace zel {

/// The trend of the reporting period in black and white, with the comments of the period.
void drawTrendPage(Picture& picture, const ReportSource& report, const Rect& rect);
/// How to read it, in two lines of which the lower one stands on \p at.
void drawTrendLegend(Picture& picture, const ReportSource& report, Point at, double width);

} // namespace zel

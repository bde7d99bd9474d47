#pragma once

#include "chart/Picture.h"
#include "report/ReportSource.h"

namespace zel {

/// The blood-pressure chart over the pulse chart.
void drawGraph(Picture& picture, const ReportSource& report, const Rect& rect);
/// The blood-pressure chart alone.
void drawTrend(Picture& picture, const ReportSource& report, const Rect& rect);
/// How to read the charts, and how many readings their scales leave out, in lines that stand on \p at.
void drawGraphLegend(Picture& picture, const ReportSource& report, Point at, double width);

/// A thin black frame.
void drawBlackFrames(Picture& picture, const Rect& rect);
void append(Picture& picture, Picture part);
/// The two limits of the settings, such as "140/90 mmHg".
[[nodiscard]] QString limitsText(const ReportSource& report);

} // namespace zel

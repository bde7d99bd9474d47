#pragma once

#include "chart/Picture.h"
#include "report/ReportSource.h"

namespace zel {

/// The trend of all times of the day, and below it when the comments of the period were, by the numbers under
/// which they are listed. Where not all numbers have room, those of the newest stand there, and the heading
/// counts the others.
void drawSummaryTrend(Picture& picture, const ReportSource& report, const Rect& rect);

} // namespace zel

#pragma once

#include "chart/Picture.h"
#include "report/ReportSource.h"

namespace zel {

/// How many readings the page does not count and why, those that the user left out with their reasons as far
/// as they fit, and how to read the page.
void drawSummaryLeftOut(Picture& picture, const ReportSource& report, const Rect& rect);

} // namespace zel

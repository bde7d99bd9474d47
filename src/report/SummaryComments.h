#pragma once

#include "chart/Picture.h"
#include "report/ReportSource.h"

namespace zel {

/// The comments of the period, the newest first, with what was measured before and since: as many as fit,
/// how many more there are, and how many have no day in the period.
void drawSummaryComments(Picture& picture, const ReportSource& report, const Rect& rect);

} // namespace zel

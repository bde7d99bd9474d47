#pragma once

#include "chart/Picture.h"
#include "report/ReportSource.h"

namespace zel {

/// Mornings and evenings of the period's last days.
void drawSummaryDays(Picture& picture, const ReportSource& report, const Rect& rect);
[[nodiscard]] double summaryDaysHeight();

} // namespace zel

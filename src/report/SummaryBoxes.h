#pragma once
// What the summary shows at a glance.

#include "analysis/Summary.h"
#include "chart/Picture.h"
#include "report/ReportSource.h"

namespace zel {

/// The one that was chosen, or the last one of the period; none that ends before the period begins.
[[nodiscard]] MeasuringWeek summaryWeek(const ReportSource& report);

/// The average of the measuring week, large.
void drawSummaryWeek(Picture& picture, const ReportSource& report, const Rect& rect);
/// Share of the readings at or above the limits, large, and how many were flagged.
void drawSummaryShares(Picture& picture, const ReportSource& report, const SummaryFigures& figures,
                       const Rect& rect);

} // namespace zel

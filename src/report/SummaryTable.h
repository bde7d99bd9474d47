#pragma once

#include "analysis/Summary.h"
#include "chart/Picture.h"
#include "report/ReportSource.h"

namespace zel {

/// Means, extremes and deviations of all readings, of mornings and of evenings.
void drawSummaryTable(Picture& picture, const ReportSource& report, const SummaryFigures& figures,
                      const Rect& rect);
[[nodiscard]] double summaryTableHeight();

} // namespace zel

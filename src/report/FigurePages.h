#pragma once
// The pages that show pictures of the figures, each with what it says in words.

#include "chart/Picture.h"
#include "report/ReportSource.h"

namespace zel {

void drawHistogramPage(Picture& picture, const ReportSource& report, const Rect& rect);
void drawCorrelationPage(Picture& picture, const ReportSource& report, const Rect& rect);

/// The period's averages, minima and maxima, beside the limits and how many readings keep them.
void drawStatisticSummary(Picture& picture, const ReportSource& report, const Rect& rect);

} // namespace zel

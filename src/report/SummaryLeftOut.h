#pragma once

#include "chart/Picture.h"
#include "report/PageFrame.h"
#include "report/ReportSource.h"

namespace zel {

/// How many readings the page does not count and why, those that are left out with their reasons as far
/// as they fit, and how to read the page: also where in the document the rest stands.
void drawSummaryLeftOut(Picture& picture, const ReportSource& report, const PagePlace& place,
                        const Rect& rect);
/// Whether all that the document has to name fit there whole.
[[nodiscard]] bool namesAllLeftOut(const ReportSource& report, const PagePlace& place, const Rect& rect);

} // namespace zel

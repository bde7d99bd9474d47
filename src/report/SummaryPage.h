#pragma once

#include "chart/Picture.h"
#include "report/PageFrame.h"
#include "report/PageGeometry.h"
#include "report/ReportSource.h"

namespace zel {

/// All that the summary has below its title band: one page, whatever the data; what does not fit is counted.
void drawSummaryPage(Picture& picture, const PageGeometry& at, const ReportSource& report,
                     const PagePlace& place);
/// Whether all readings left out that the document has to name stand there whole.
[[nodiscard]] bool namesAllOnSummary(const PageGeometry& at, const ReportSource& report,
                                     const PagePlace& place);

} // namespace zel

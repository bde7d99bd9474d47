#pragma once

#include "chart/Picture.h"
#include "report/PageGeometry.h"
#include "report/ReportSource.h"

namespace zel {

/// All that the summary has below its title band: one page, whatever the data; what does not fit is counted.
/// \p note: on a line of its own under the period, may be empty.
void drawSummaryPage(Picture& picture, const PageGeometry& at, const ReportSource& report,
                     const QString& note);

} // namespace zel

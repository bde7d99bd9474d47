#pragma once

#include "chart/Picture.h"
#include "report/ReportSource.h"

namespace zel {

/// Who the patient is, which period, and who treats; \p note on a line below, unless it is empty, which takes
/// the width. \return what is left below
[[nodiscard]] Rect drawSummaryHead(Picture& picture, const ReportSource& report, const QString& note,
                                   const Rect& rect);

} // namespace zel

#pragma once

#include "chart/Picture.h"
#include "report/ReportSource.h"

namespace zel {

/// What the marks of the reading table mean, in lines that stand on \p at.
void drawTableLegend(Picture& picture, const ReportSource& report, Point at, double width);

} // namespace zel

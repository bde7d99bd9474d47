#pragma once

#include "chart/Picture.h"
#include "report/ReportSource.h"

namespace zel {

/// The patient's data on one page, in a fixed design that is mapped onto the rectangle.
void drawPatient(Picture& picture, const ReportSource& report, const Rect& rect);

} // namespace zel

#pragma once

#include "chart/ChartScale.h"
#include "chart/Picture.h"

namespace zel {

/// Numbers, unit and grid lines of the blood-pressure chart.
void drawBloodScale(Picture& picture, const ChartScale& scale);
/// The same of the pulse chart.
void drawPulseScale(Picture& picture, const ChartScale& scale);

} // namespace zel

#pragma once

#include "chart/ChartScale.h"
#include "chart/Picture.h"

namespace zel {

/// Numbers, unit and grid lines of the blood-pressure chart.
void drawBloodScale(Picture& picture, const ChartScale& scale);
/// The same of the pulse chart.
void drawPulseScale(Picture& picture, const ChartScale& scale);

/// The line of a limit in mmHg; none for 0.
void DrawAlphaLine(Picture& picture, const ChartScale& scale, std::uint32_t limit);

} // namespace zel

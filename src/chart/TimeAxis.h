#pragma once

#include "chart/ChartScale.h"
#include "chart/Picture.h"

namespace zel {

/// Whole calendar days from the first to the last day of the period.
[[nodiscard]] int dayDiff(const TimeScale& time, const LocalZone& zone);

/// Short enough for day numbers and comment boxes: fewer than 48 days, the first and the last included.
[[nodiscard]] bool isShortPeriod(int days);

/// Days from one grid line to the next.
[[nodiscard]] int gridStep(int days);

/// Grid lines of days, and with \p labels their numbers and names in the date strip.
void drawTimeAxis(Picture& picture, const ChartScale& scale, bool labels, const LocalZone& zone);

} // namespace zel

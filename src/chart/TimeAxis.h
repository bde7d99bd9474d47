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

/// Grid lines of days; none for a single day.
void drawTimeAxis(Picture& picture, const ChartScale& scale, const LocalZone& zone);

/// Numbers of the days, or names of the months, and years in the strips, \p leftGap or more from the plot's
/// left side.
void drawDateLabels(Picture& picture, const ChartScale& scale, double leftGap, const LocalZone& zone);

} // namespace zel

#pragma once

#include "chart/ChartScale.h"
#include "chart/DateLabels.h"
#include "chart/Picture.h"

#include <vector>

namespace zel {

/// Whole calendar days from the first to the last day of the period.
[[nodiscard]] int dayDiff(const TimeScale& time, const LocalZone& zone);

/// Short enough for day numbers and comment boxes: fewer than 48 days, the first and the last included.
[[nodiscard]] bool isShortPeriod(int days);

/// Days from one grid line to the next.
[[nodiscard]] int gridStep(int days);

/// The days that have a grid line; lines and labels share one, as asking the time zone for each day takes
/// longer than drawing it.
struct AxisGrid {
    AxisGrid(const ChartScale& scale, const LocalZone& zone);

    int days; ///< from the first to the last day
    std::vector<AxisDay> lines;
};

/// Grid lines of days; none for a single day.
void drawTimeAxis(Picture& picture, const ChartScale& scale, const AxisGrid& grid);

/// Numbers of the days, or names of the months, and years in the strips, \p leftGap or more from the plot's
/// left side.
void drawDateLabels(Picture& picture, const ChartScale& scale, double leftGap, const AxisGrid& grid);

} // namespace zel

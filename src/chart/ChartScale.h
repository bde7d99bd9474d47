#pragma once

#include "analysis/ReadingSelection.h"
#include "chart/Geometry.h"
#include "chart/OffScale.h"
#include "chart/TimeScale.h"

#include <optional>

namespace zel {

inline constexpr int commentHeight = 14; ///< of the comment strip
inline constexpr int dateHeight = 16;    ///< of the date strip
inline constexpr int scaleWidth = 29;    ///< of the column of numbers at the left
/// Height of the date strip and the comment strip together.
[[nodiscard]] constexpr int getBaseAreaHeight() { return commentHeight + dateHeight; }

inline constexpr int startScaleBase = 60;
/// The base value of the scales, from any whole number: a multiple of 10.
[[nodiscard]] int setScaleBase(int number);

/// Where values and dates lie in a chart.
struct ChartScale {
    Rect totalRect; ///< everything
    Rect whiteRect; ///< the plot and the strips below it
    Rect chartRect; ///< the plot
    TimeScale time; ///< from the first second of a day to the last second of one
    int iScaleBase = startScaleBase;
    std::optional<ScaleRange> fitted{}; ///< shown in place of what belongs to the base; not empty

    ChartScale(const Rect& totalRect, const Period& period, bool noBaseArea, int iScaleBase);

    [[nodiscard]] double mapValToY(double value) const;      ///< mmHg
    [[nodiscard]] double mapPulseValToY(double value) const; ///< beats per minute
    [[nodiscard]] ScaleRange bloodRange() const;             ///< mmHg
    [[nodiscard]] ScaleRange pulseRange() const;             ///< beats per minute
};

} // namespace zel

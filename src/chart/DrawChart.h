#pragma once

#include "chart/ChartReadings.h"
#include "chart/ChartScale.h"
#include "chart/Picture.h"
#include "chart/ReadingLines.h"

#include <QLatin1StringView>

namespace zel {

/// How one chart is shown.
struct ChartStyle {
    bool noBaseArea = false; ///< without date strip and comment strip
    bool showBlood = false;  ///< blood pressure; else pulse
    ViewSelection showDataType = ViewSelection::viewAll;
    QLatin1StringView myID;
    bool forPrint = false;
    bool CompareType = false; ///< mornings and evenings are compared: says which of them it shows
    bool bTrack = false;      ///< bordered marks, which the pointer can find
    int iScaleBase = startScaleBase;
};

/// The blood-pressure chart as it starts.
inline constexpr ChartStyle DrawBlood{
    .noBaseArea = true, .showBlood = true, .myID = QLatin1StringView("blood"), .bTrack = true};
/// The pulse chart as it starts on the screen, where it carries the comments.
inline constexpr ChartStyle DrawPulse{.myID = QLatin1StringView("pulse"), .bTrack = true};
/// The pulse chart without comments starts as a blood-pressure chart; whoever prints sets what it shows.
inline constexpr ChartStyle DrawPulsePlain{
    .noBaseArea = true, .showBlood = true, .myID = QLatin1StringView("pulse")};

/// Stays free at the top of a printed plot, for whoever marks the days of downloads there.
inline constexpr double downloadMarkHeight = 10;

/// Everything that a chart is made of.
struct ChartInput {
    const ChartData& data;
    Period period;                 ///< whole days
    std::uint32_t sysStandard = 0; ///< mmHg; 0: no limit
    std::uint32_t diaStandard = 0; ///< mmHg; 0: no limit
    ChartStyle style;
    Rect totalRect;
};

/// A chart as plain numbers.
struct ChartLayout {
    Picture picture;
    ChartScale scale;
    bool bShowComment = false; ///< day numbers and comment boxes are shown
};

/// \p zone is the computer's.
[[nodiscard]] ChartLayout drawChart(const ChartInput& input, const LocalZone& zone);

/// The marks in the plot, in the order of their dates: not part of the layout, as few charts are pointed at.
[[nodiscard]] std::vector<ChartPoint> chartPoints(const ChartInput& input);

/// What stands in a plot of a period without readings.
[[nodiscard]] QString noReadingsText(ViewSelection view);

/// The period with \p days more at each end; fewer for a negative number.
[[nodiscard]] Period addDay(const Period& period, int days);

} // namespace zel

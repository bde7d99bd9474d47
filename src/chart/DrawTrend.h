#pragma once

#include "analysis/Trend.h"
#include "chart/Picture.h"
#include "store/RecordLinks.h"

namespace zel {

/// Everything that the picture of a trend is made of.
struct TrendInput {
    const TrendSeriesList& trend;
    const CommentList& comments;   ///< those of the period are shown; an empty list takes no room
    ReadingSelection selection;    ///< that the trend was calculated of
    std::uint32_t sysStandard = 0; ///< mmHg; 0: no limit
    std::uint32_t diaStandard = 0; ///< mmHg; 0: no limit
    bool forPrint = false;         ///< black on white
    bool isFitted =
        false; ///< scales of no more than readings and limits need, and a lower plot for the pulse
    Rect totalRect;
};

/// A step that has a reading, for whoever points at it.
struct TrendColumn {
    DayNumber begin = noDay; ///< as its points have them
    DayNumber end = noDay;
    double x = 0;
    std::vector<Point> medians; ///< that lie in the plots, the uppermost first
};

struct TrendLayout {
    Picture picture;
    Rect plot; ///< both plots, one over the other; empty where there is no room for them
    std::vector<TrendColumn> columns; ///< from left to right
};

/// A smaller picture may have nothing but its background.
inline constexpr Size leastTrendSize{200, 130};

/// Medians of systolic and diastolic pressure over those of the pulse, with the bands in which most readings
/// lie, the limits, the dates and the comments below. \p zone is the computer's.
[[nodiscard]] TrendLayout drawTrend(const TrendInput& input, const LocalZone& zone);

/// "Median of each week".
[[nodiscard]] QString trendStepText(TrendStep step);

/// The limits that lie in the picture's scale; 0 for one that does not.
[[nodiscard]] std::pair<std::uint32_t, std::uint32_t> trendLimits(std::uint32_t sys, std::uint32_t dia);

} // namespace zel

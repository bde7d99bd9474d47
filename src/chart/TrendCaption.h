#pragma once
// The words above a trend: what a point stands for, what the band is, what the dots are.

#include "analysis/Trend.h"
#include "chart/Picture.h"

#include <QStringList>

namespace zel {

struct TrendCaption {
    QStringList lines;         ///< one at least, none wider than its room unless it is the only one
    bool explainsLinks = true; ///< whether dots may be drawn: nobody knows what they are without the words
};

inline constexpr double trendCaptionLine = 14; ///< from one line to the next
[[nodiscard]] TextAttribute trendCaptionFont();

/// By the data: of what is not drawn, nothing is said. Where there is little room, the band's words go first,
/// then those of readings that were stored in another time zone, then the dots with theirs.
[[nodiscard]] TrendCaption trendCaption(const TrendSeriesList& trend, double width, int mostLines);

} // namespace zel

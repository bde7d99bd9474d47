#pragma once

#include "analysis/Statistic.h"
#include "chart/Picture.h"

namespace zel {

/// The table of averages, minima and maxima; \p showMap: its fourth row is MAP, else pulse pressure.
[[nodiscard]] Picture drawStatistic(const StatisticFigures& figures, bool showMap, const Rect& rect);

} // namespace zel

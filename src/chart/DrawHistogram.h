#pragma once

#include "analysis/Histogram.h"
#include "chart/Picture.h"

namespace zel {

/// How the readings' values are distributed: three panels side by side, a bar for each class of 10 units.
[[nodiscard]] Picture drawHistogram(const HistogramFigures& figures, const Rect& rect);

} // namespace zel

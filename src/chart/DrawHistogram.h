#pragma once

#include "analysis/Histogram.h"
#include "chart/OffScale.h"
#include "chart/Picture.h"

#include <array>

namespace zel {

/// Of the systolic, the diastolic and the pulse panel.
using HistogramOffScale = std::array<OffScale, 3>;

/// Of the readings that calcHistogram() counts, those that have no bar in their panel.
[[nodiscard]] HistogramOffScale histogramOffScale(const ReadingList& readings,
                                                  const ReadingSelection& selection);

/// How the readings' values are distributed: three panels side by side, a bar for each class of 10 units.
[[nodiscard]] Picture drawHistogram(const HistogramFigures& figures, const HistogramOffScale& offScale,
                                    const Rect& rect);

} // namespace zel

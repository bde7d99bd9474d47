#pragma once

#include "analysis/ReadingSelection.h"
#include "store/RecordLinks.h"

#include <array>

namespace zel {

/// Classes of 10 units, 0 to 299; larger values have no class.
inline constexpr int histogramClassTotal = 30;

struct HistogramMeasure {
    std::array<float, histogramClassTotal> share{}; ///< of all counted readings, 0 to 1
    int percentDivisions = 8;                       ///< of 10 percent each, on the percent axis
};

struct HistogramFigures {
    HistogramMeasure sys;
    HistogramMeasure dia;
    HistogramMeasure pulse;
    float total = 0; ///< counted readings
};

/// \p previous gives the percent divisions that stay when no reading counts.
[[nodiscard]] HistogramFigures calcHistogram(const ReadingList& readings, const ReadingSelection& selection,
                                             const HistogramFigures& previous = {});

/// Number of 10-percent divisions for the largest share of a measure.
[[nodiscard]] int tuneDivide(float largestShare);

} // namespace zel

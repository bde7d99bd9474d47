#include "analysis/Histogram.h"

#include <algorithm>
#include <cmath>

namespace zel {

namespace {

constexpr std::uint32_t classWidth = 10;
constexpr int mostDivisions = 10;

void count(HistogramMeasure& measure, std::uint32_t value) {
    const std::uint32_t classNumber = value / classWidth;
    if (classNumber < measure.share.size()) measure.share[classNumber] += 1;
}

void toShares(HistogramMeasure& measure, float total) {
    for (float& share : measure.share)
        share /= total;
    measure.percentDivisions = tuneDivide(*std::ranges::max_element(measure.share));
}

} // namespace

HistogramFigures calcHistogram(const ReadingList& readings, const ReadingSelection& selection,
                               const HistogramFigures& previous) {
    HistogramFigures figures;
    for (const ReadingModel& reading : readings) {
        if (!isCounted(reading, selection)) continue;
        count(figures.sys, reading.sys);
        count(figures.dia, reading.dia);
        count(figures.pulse, reading.pulse);
        figures.total += 1;
    }
    for (const auto measure : {&HistogramFigures::sys, &HistogramFigures::dia, &HistogramFigures::pulse}) {
        if (figures.total > 0)
            toShares(figures.*measure, figures.total);
        else
            (figures.*measure).percentDivisions = (previous.*measure).percentDivisions;
    }
    return figures;
}

int tuneDivide(float largestShare) {
    const int divisions = static_cast<int>(std::ceil(largestShare * 10 + 0.5F));
    return std::min(divisions % 2 == 0 ? divisions + 1 : divisions, mostDivisions);
}

} // namespace zel

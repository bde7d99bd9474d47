#pragma once

#include "analysis/ReadingSelection.h"
#include "store/RecordLinks.h"

#include <QString>

#include <cstdint>

namespace zel {

struct MeasureStatistic {
    std::uint32_t minimum = 32767; ///< above 32766: none
    std::uint32_t maximum = 0;
    float sum = 0;            ///< single precision
    std::int32_t average = 0; ///< rounded, halves away from zero
};

struct StatisticFigures {
    MeasureStatistic sys;     ///< mmHg
    MeasureStatistic dia;     ///< mmHg
    MeasureStatistic pulse;   ///< beats per minute
    MeasureStatistic mapOrPP; ///< mean arterial pressure or pulse pressure, mmHg
    float count = 0;
};

/// Figures of the readings in the period, morning and evening alike, with the undated ones if wanted.
[[nodiscard]] StatisticFigures calcStatistic(const ReadingList& readings, const ReadingSelection& selection,
                                             bool showMap);

[[nodiscard]] QString maxString(std::uint32_t value); ///< also of averages; "n/a" for 0
[[nodiscard]] QString minString(std::uint32_t value); ///< "n/a" where there was no reading

} // namespace zel

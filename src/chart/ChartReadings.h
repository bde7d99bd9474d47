#pragma once

#include "analysis/ReadingSelection.h"
#include "store/RecordLinks.h"

#include <cstdint>
#include <span>
#include <vector>

namespace zel {

/// What a chart needs of a reading, side by side in memory.
struct ChartReading {
    Instant date;
    std::uint32_t sys = 0;
    std::uint32_t dia = 0;
    std::uint32_t pulse = 0;
    bool isPMData = false;
    bool isExcluded = false;               ///< shown apart, joined to none
    const ReadingModel* reading = nullptr; ///< the store's, valid until its next load
};

/// What the charts show of a patient: made when the records change, not for every picture.
struct ChartData {
    std::vector<ChartReading> maReading; ///< by date; without those that have no date at all
    std::vector<Period> downloadDays;    ///< the days on which a download took place, by date, each once

    [[nodiscard]] bool hasData() const { return !maReading.empty(); }
};
[[nodiscard]] ChartData makeChartData(const ReadingList& readings, const DataLogList& downloads);

/// Those from \p begin to \p end, with the nearest one on either side that is accepted and not left out,
/// which a line may come from.
[[nodiscard]] std::span<const ChartReading> readingsAround(const std::vector<ChartReading>& readings,
                                                           const Period& period, ViewSelection view);

} // namespace zel

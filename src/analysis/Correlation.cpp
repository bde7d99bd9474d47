#include "analysis/Correlation.h"

#include <unordered_set>

namespace zel {

std::vector<CorrelationPoint> calcCorrelation(const ReadingList& readings,
                                              const ReadingSelection& selection) {
    std::vector<CorrelationPoint> points;
    std::unordered_set<std::uint64_t> seen;
    for (const ReadingModel& reading : readings) {
        if (!isCounted(reading, selection)) continue;
        if (seen.insert(std::uint64_t{reading.sys} << 32U | reading.dia).second)
            points.push_back({reading.sys, reading.dia});
    }
    return points;
}

} // namespace zel

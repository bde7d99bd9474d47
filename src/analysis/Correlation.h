#pragma once

#include "analysis/ReadingSelection.h"
#include "store/RecordLinks.h"

#include <cstdint>
#include <vector>

namespace zel {

struct CorrelationPoint {
    std::uint32_t sys = 0; ///< mmHg
    std::uint32_t dia = 0; ///< mmHg

    auto operator<=>(const CorrelationPoint&) const = default;
};

/// Each pair of values that occurs among the counted readings, once, in the order in which it first occurs.
[[nodiscard]] std::vector<CorrelationPoint> calcCorrelation(const ReadingList& readings,
                                                            const ReadingSelection& selection);

} // namespace zel

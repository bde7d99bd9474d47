#include "analysis/ReadingSelection.h"

#include <chrono>

namespace zel {

Period lastDays(Instant last, int days) {
    // From the middle of the day, which an hour more or less where the clocks change cannot leave.
    const Instant middle = DateToDayBoundary(last, true) + std::chrono::hours{12};
    return {DateToDayBoundary(middle - std::chrono::days{days - 1}, true), DateToDayBoundary(last, false)};
}

} // namespace zel

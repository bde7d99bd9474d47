#include "app/frame/PeriodMoves.h"

#include <algorithm>
#include <cmath>

namespace zel {

namespace {

constexpr int widestPeriod = 36525; ///< days; more shows nothing more

/// From the middle of the day, which an hour more or less where the clocks change cannot leave.
Instant middle(Instant dayBegin) { return dayBegin + std::chrono::hours{12}; }

int daysFrom(Instant from, Instant to) { return static_cast<int>(DayDiff(from, to)); }

} // namespace

Period movedEnds(const Period& period, int beginDays, int endDays) {
    const Instant lastDay = DateToDayBoundary(period.end, true);
    return {DateToDayBoundary(middle(period.begin) + std::chrono::days{beginDays}, true),
            DateToDayBoundary(middle(lastDay) + std::chrono::days{endDays}, false)};
}

TimeScroll timeScroll(const Period& period, const Period& data) {
    return {std::max(0, daysFrom(data.begin, period.begin)), std::max(0, daysFrom(period.end, data.end))};
}

Period shifted(const Period& period, const Period& data, int days) {
    const TimeScroll room = timeScroll(period, data);
    const int moved = std::clamp(days, -room.daysBefore, room.daysAfter);
    return movedEnds(period, moved, moved);
}

Period movedTo(const Period& period, Instant date) {
    const int before = std::max(0, daysFrom(date, period.begin));
    const int after = std::max(0, daysFrom(period.end, date));
    return movedEnds(period, after - before, after - before);
}

int daysIn(const Period& period) { return daysFrom(period.begin, period.end) + 1; }

bool canBeNarrowed(const Period& period) { return daysFrom(period.begin, period.end) >= 2; }

Period widened(const Period& period, int days, double fraction) {
    const int span = daysFrom(period.begin, period.end);
    const int most = std::max(0, widestPeriod - span) / 2;
    const int least = canBeNarrowed(period) ? -std::max(1, (span - 1) / 2) : 0;
    const int each = std::clamp(days, least, most);
    const int before = std::clamp(static_cast<int>(std::lround(2 * each * fraction)), std::min(0, 2 * each),
                                  std::max(0, 2 * each));
    return movedEnds(period, -before, 2 * each - before);
}

} // namespace zel

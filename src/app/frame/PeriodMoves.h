#pragma once
// How the displayed period is moved and how it grows and shrinks, by whole calendar days.

#include "analysis/ReadingSelection.h"

namespace zel {

/// Both ends moved, each by its days.
[[nodiscard]] Period movedEnds(const Period& period, int beginDays, int endDays);

/// How far the period can be moved within the data. Both 0 where it covers all of them.
struct TimeScroll {
    int daysBefore = 0;
    int daysAfter = 0;

    [[nodiscard]] int total() const { return daysBefore + daysAfter; }
};
[[nodiscard]] TimeScroll timeScroll(const Period& period, const Period& data);
/// Moved as far as the data go; to the left for a negative number.
[[nodiscard]] Period shifted(const Period& period, const Period& data, int days);
/// As little moved as it takes to have the instant in it.
[[nodiscard]] Period movedTo(const Period& period, Instant date);

/// Days of the period, the first and the last included.
[[nodiscard]] int daysIn(const Period& period);
/// Whether another day may be taken off at both ends.
[[nodiscard]] bool canBeNarrowed(const Period& period);
/// Wider by so many days at each end, narrower for a negative number; the day at \p fraction (0 to 1) of the
/// period stays where it is. Never fewer than two days, save one of three, whose ends both go.
[[nodiscard]] Period widened(const Period& period, int days, double fraction);

} // namespace zel

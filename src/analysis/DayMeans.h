#pragma once

#include "analysis/PressureMeans.h"
#include "store/RecordLinks.h"

#include <vector>

namespace zel {

/// Means over any span of days, each in a moment however many readings there are. Undated ones are not
/// counted.
class DayMeans {
public:
    explicit DayMeans(const ReadingList& readings);
    /// Both days included.
    [[nodiscard]] PressureMeans between(DayNumber first, DayNumber last) const;
    /// How many readings of these days are left out.
    [[nodiscard]] int excludedBetween(DayNumber first, DayNumber last) const;
    /// How many of the others have no pressures.
    [[nodiscard]] int unmeasuredBetween(DayNumber first, DayNumber last) const;
    /// How many of the readings that count were stored in another time zone than the computer's.
    [[nodiscard]] int ofOtherZoneBetween(DayNumber first, DayNumber last) const;

private:
    struct UpTo {
        DayNumber day = noDay;
        PressureMeans means{}; ///< of all readings up to and with that day
    };
    [[nodiscard]] PressureMeans before(DayNumber day) const;

    std::vector<UpTo> days;                ///< ascending
    std::vector<DayNumber> excludedDays;   ///< ascending, one for each reading
    std::vector<DayNumber> unmeasuredDays; ///< the same
    std::vector<DayNumber> otherZoneDays;  ///< the same
};

} // namespace zel

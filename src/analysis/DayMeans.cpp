#include "analysis/DayMeans.h"

#include "analysis/ReadingSelection.h"

#include <algorithm>

namespace zel {

namespace {

int countBetween(const std::vector<DayNumber>& days, DayNumber first, DayNumber last) {
    if (first > last) return 0;
    return static_cast<int>(std::ranges::upper_bound(days, last) - std::ranges::lower_bound(days, first));
}

} // namespace

DayMeans::DayMeans(const ReadingList& readings) {
    std::vector<const ReadingModel*> dated;
    dated.reserve(readings.size());
    for (const ReadingModel& reading : readings) {
        if (reading.isUndated()) continue;
        if (isAveraged(reading)) {
            dated.push_back(&reading);
            if (reading.isOfOtherZone) otherZoneDays.push_back(reading.day);
        } else {
            (reading.isExcluded() ? excludedDays : unmeasuredDays).push_back(reading.day);
        }
    }
    for (std::vector<DayNumber>* each : {&excludedDays, &unmeasuredDays, &otherZoneDays})
        std::ranges::sort(*each);
    const auto day = [](const ReadingModel* reading) { return reading->day; };
    // Most files have them in order, and sorting takes most of the time also then.
    if (!std::ranges::is_sorted(dated, {}, day)) std::ranges::stable_sort(dated, {}, day);
    PressureMeans sum;
    for (const ReadingModel* reading : dated) {
        sum.add(*reading);
        if (days.empty() || days.back().day != reading->day) days.push_back({reading->day});
        days.back().means = sum;
    }
}

PressureMeans DayMeans::before(DayNumber day) const {
    const auto next = std::ranges::lower_bound(days, day, {}, &UpTo::day);
    return next == days.begin() ? PressureMeans{} : std::prev(next)->means;
}

PressureMeans DayMeans::between(DayNumber first, DayNumber last) const {
    if (first > last) return {};
    return before(last + 1) - before(first);
}

int DayMeans::excludedBetween(DayNumber first, DayNumber last) const {
    return countBetween(excludedDays, first, last);
}

int DayMeans::unmeasuredBetween(DayNumber first, DayNumber last) const {
    return countBetween(unmeasuredDays, first, last);
}

int DayMeans::ofOtherZoneBetween(DayNumber first, DayNumber last) const {
    return countBetween(otherZoneDays, first, last);
}

} // namespace zel

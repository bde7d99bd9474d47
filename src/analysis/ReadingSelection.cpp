#include "analysis/ReadingSelection.h"

#include <chrono>

namespace zel {

namespace {

constexpr std::chrono::sys_days markerDate{std::chrono::year{2000} / 1 / 1};
constexpr DayNumber markerDay{markerDate.time_since_epoch().count()};

} // namespace

Period lastDays(Instant last, int days) {
    // From the middle of the day, which an hour more or less where the clocks change cannot leave.
    const Instant middle = DateToDayBoundary(last, true) + std::chrono::hours{12};
    return {DateToDayBoundary(middle - std::chrono::days{days - 1}, true), DateToDayBoundary(last, false)};
}

bool MatchedDataType(ViewSelection view, bool isPMData) {
    switch (view) {
    case ViewSelection::custom:
    case ViewSelection::viewAll: return true;
    case ViewSelection::amOnly: return !isPMData;
    case ViewSelection::pmOnly: return isPMData;
    case ViewSelection::none: break;
    }
    return false;
}

bool hasUndatedMarker(const ReadingModel& reading) {
    return !reading.ReadingDate || reading.day == markerDay;
}

bool isListed(const ReadingModel& reading, const ReadingSelection& selection) {
    if (hasUndatedMarker(reading)) return selection.includeUndated;
    return !reading.isUndated() && selection.period.contains(*reading.ReadingDate)
           && MatchedDataType(selection.view, reading.isPMData);
}

bool isInStatistic(const ReadingModel& reading, const ReadingSelection& selection) {
    ReadingSelection wholeDays = selection;
    wholeDays.view = ViewSelection::custom;
    return reading.ReadingDate && !reading.isExcluded() && isListed(reading, wholeDays);
}

bool isCounted(const ReadingModel& reading, const ReadingSelection& selection) {
    if (reading.isExcluded()) return false;
    if (selection.includeUndated && hasUndatedMarker(reading)) return true;
    return reading.ReadingDate && selection.period.contains(*reading.ReadingDate)
           && MatchedDataType(selection.view, reading.isPMData);
}

bool isInChart(const ReadingModel& reading, const ReadingSelection& selection) {
    return isCounted(reading, selection) && !hasUndatedMarker(reading);
}

bool isAveraged(const ReadingModel& reading) { return !reading.isUndated() && !reading.isExcluded(); }

} // namespace zel

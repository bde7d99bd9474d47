#pragma once

#include "store/ReadingModel.h"

#include <chrono>
#include <cstdint>

namespace zel {

/// From one instant to another, both included.
struct Period {
    Instant begin;
    Instant end;

    bool operator==(const Period&) const = default;
    [[nodiscard]] bool contains(Instant date) const { return begin <= date && date <= end; }
};

/// So many whole days, the last of them that of \p last; one at least.
[[nodiscard]] Period lastDays(Instant last, int days);

/// What a view shows of its period. The numbers are those of the view choices.
enum class ViewSelection : std::int32_t {
    custom = -1, ///< all readings of the days shown
    none = 0,    ///< no reading at all
    viewAll = 1, ///< everything: the display period is the data period
    amOnly = 2,  ///< readings before noon, of whatever days are shown
    pmOnly = 3,  ///< readings from noon on, likewise
};

/// Whether a view of that selection shows readings of that half of the day. It and the rules below stand here
/// so that they are built into the loops that ask for each reading, most of whose time the calls took.
[[nodiscard]] inline bool MatchedDataType(ViewSelection view, bool isPMData) {
    switch (view) {
    case ViewSelection::custom:
    case ViewSelection::viewAll: return true;
    case ViewSelection::amOnly: return !isPMData;
    case ViewSelection::pmOnly: return isPMData;
    case ViewSelection::none: break;
    }
    return false;
}

/// Which readings a view takes.
struct ReadingSelection {
    Period period;
    ViewSelection view = ViewSelection::custom;
    bool includeUndated = false; ///< also those with the undated marker, whatever the period and the view

    bool operator==(const ReadingSelection&) const = default;
};

/// The monitor stored the reading without a valid clock, or the file gives no date at all.
[[nodiscard]] inline bool hasUndatedMarker(const ReadingModel& reading) {
    constexpr std::chrono::sys_days marker{std::chrono::year{2000} / 1 / 1};
    return !reading.ReadingDate || reading.day == DayNumber{marker.time_since_epoch().count()};
}

/// Whether the list of readings has the reading, also one that is left out.
[[nodiscard]] inline bool isListed(const ReadingModel& reading, const ReadingSelection& selection) {
    if (hasUndatedMarker(reading)) return selection.includeUndated;
    return selection.period.contains(*reading.ReadingDate)
           && MatchedDataType(selection.view, reading.isPMData) && !reading.isUndated();
}

/// Whether the statistics count the reading. Unlike elsewhere, the half of the day does not matter.
[[nodiscard]] inline bool isInStatistic(const ReadingModel& reading, const ReadingSelection& selection) {
    ReadingSelection wholeDays = selection;
    wholeDays.view = ViewSelection::custom;
    return reading.ReadingDate && !reading.isExcluded() && isListed(reading, wholeDays);
}

/// Whether histogram and correlation count the reading.
[[nodiscard]] inline bool isCounted(const ReadingModel& reading, const ReadingSelection& selection) {
    if (reading.isExcluded()) return false;
    if (selection.includeUndated && hasUndatedMarker(reading)) return true;
    return reading.ReadingDate && selection.period.contains(*reading.ReadingDate)
           && MatchedDataType(selection.view, reading.isPMData);
}

/// Whether the chart counts the reading: its time axis has no place for an undated one, wanted or not.
[[nodiscard]] inline bool isInChart(const ReadingModel& reading, const ReadingSelection& selection) {
    return isCounted(reading, selection) && !hasUndatedMarker(reading);
}

/// Whether it can be a pressure (mmHg) or a pulse (beats per minute): 0 stands for none, and a damaged file
/// holds any number.
[[nodiscard]] inline bool isMeasured(std::uint32_t value) {
    constexpr std::uint32_t mostMeasured = 999;
    return 0 < value && value <= mostMeasured;
}

/// Whether there is something to take a mean of. Without a pulse, the pressures count all the same.
[[nodiscard]] inline bool hasPressures(const ReadingModel& reading) {
    return isMeasured(reading.sys) && isMeasured(reading.dia);
}

/// Whether averages of days and weeks count the reading: it has a day and pressures, and is not left out.
[[nodiscard]] inline bool isAveraged(const ReadingModel& reading) {
    return !reading.isUndated() && !reading.isExcluded() && hasPressures(reading);
}

/// Whether the summary counts the reading.
[[nodiscard]] inline bool isInSummary(const ReadingModel& reading, const ReadingSelection& selection) {
    return isInStatistic(reading, selection) && hasPressures(reading);
}

/// Whether the trend counts the reading.
[[nodiscard]] inline bool isInTrend(const ReadingModel& reading, const ReadingSelection& selection) {
    return isInChart(reading, selection) && hasPressures(reading);
}

} // namespace zel

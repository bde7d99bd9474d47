#pragma once

#include "store/ReadingModel.h"

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

/// Whether a view of that selection shows readings of that half of the day.
[[nodiscard]] bool MatchedDataType(ViewSelection view, bool isPMData);

/// Which readings a view takes.
struct ReadingSelection {
    Period period;
    ViewSelection view = ViewSelection::custom;
    bool includeUndated = false; ///< also those with the undated marker, whatever the period and the view

    bool operator==(const ReadingSelection&) const = default;
};

/// The monitor stored the reading without a valid clock, or the file gives no date at all.
[[nodiscard]] bool hasUndatedMarker(const ReadingModel& reading);

/// Whether the list of readings has the reading, also one that the user left out.
[[nodiscard]] bool isListed(const ReadingModel& reading, const ReadingSelection& selection);

/// Whether the statistics count the reading. Unlike elsewhere, the half of the day does not matter.
[[nodiscard]] bool isInStatistic(const ReadingModel& reading, const ReadingSelection& selection);

/// Whether histogram and correlation count the reading.
[[nodiscard]] bool isCounted(const ReadingModel& reading, const ReadingSelection& selection);

/// Whether the chart counts the reading: its time axis has no place for an undated one, wanted or not.
[[nodiscard]] bool isInChart(const ReadingModel& reading, const ReadingSelection& selection);

/// Whether averages of days and weeks count the reading: it has a day, and is not left out.
[[nodiscard]] bool isAveraged(const ReadingModel& reading);

} // namespace zel

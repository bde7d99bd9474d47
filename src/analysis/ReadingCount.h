#pragma once

#include "analysis/ReadingSelection.h"
#include "store/RecordLinks.h"

#include <QString>

namespace zel {

/// How many of a patient's readings a view counts, and how many it leaves out for which reason; together
/// they are all.
struct ReadingCount {
    int counted = 0;
    int outsidePeriod = 0;
    int beforeNoon = 0;  ///< where only those from noon on are shown
    int fromNoon = 0;    ///< where only those before noon are shown
    int undated = 0;     ///< the monitor's clock was not set, and such readings are not wanted or not drawn
    int withoutDate = 0; ///< no date at all, which the view never counts
    int excluded = 0;    ///< left out
    int unmeasured = 0;  ///< without pressures, where means are taken
    int listedExcluded = 0; ///< of those counted: a list has them all the same

    bool operator==(const ReadingCount&) const = default;
};

/// Whether a view counts the reading: isListed, isInStatistic, isCounted, isInChart, isInSummary or
/// isInTrend.
using CountRule = bool (*)(const ReadingModel& reading, const ReadingSelection& selection);

[[nodiscard]] ReadingCount countReadings(const ReadingList& readings, const ReadingSelection& selection,
                                         CountRule rule);

/// "1 outside the period, 2 undated ones not counted"; empty where all are counted.
[[nodiscard]] QString describeLeftOut(const ReadingCount& count);
/// "60 readings; 2 undated ones not counted"; "60 readings, 2 of them left out" of a list.
[[nodiscard]] QString describe(const ReadingCount& count);

} // namespace zel

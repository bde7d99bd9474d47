#pragma once
// What one page tells of a period: of all times of the day, without undated readings, those without pressures
// and those left out.

#include "analysis/HighValues.h"
#include "analysis/PressureMeans.h"
#include "analysis/ReadingCount.h"
#include "analysis/Spread.h"

#include <optional>
#include <vector>

namespace zel {

/// Of the same readings, but that the pulse may be missing.
struct PressureSpread {
    Spread sys; ///< mmHg
    Spread dia;
    Spread pulse; ///< beats per minute

    void add(const ReadingModel& reading) {
        sys.add(reading.sys);
        dia.add(reading.dia);
        if (isMeasured(reading.pulse)) pulse.add(reading.pulse);
    }
    [[nodiscard]] std::uint64_t count() const { return sys.count(); }
};

/// How many readings a monitor flagged, of those that it examined; others can not be flagged.
struct FlaggedReadings {
    int flagged = 0;
    int examined = 0;
};

struct SummaryFigures {
    PressureSpread all{};
    PressureSpread morning{};
    PressureSpread evening{};
    FlaggedReadings afib{};
    FlaggedReadings pad{};
    int typedIn = 0; ///< not measured by a monitor that is known
};

/// The days of the period as a selection of what the summary counts: not the view's half of the day, and no
/// undated readings.
[[nodiscard]] ReadingSelection summarySelection(const Period& period);

[[nodiscard]] SummaryFigures calcSummary(const ReadingList& readings, const Period& period);

/// How many readings have a value that is high.
[[nodiscard]] int countHighReadings(const ReadingList& readings, const Period& period,
                                    const LimitPair& limits);

/// How many of those that the summary counts were stored in another time zone than the computer's.
[[nodiscard]] int countOfOtherZone(const ReadingList& readings, const Period& period);

/// A day's readings before noon and from noon on.
struct DayHalves {
    DayNumber day = noDay;
    PressureMeans morning{};
    PressureMeans evening{};
};

/// Without one, there is no period to tell of.
[[nodiscard]] bool isAnyDated(const ReadingList& readings);

/// The period's last day with a reading that counts.
[[nodiscard]] std::optional<DayNumber> lastDayOf(const ReadingList& readings, const Period& period);

inline constexpr int lastDaysOnSummary = 14;
/// The calendar days up to the period's last one with a reading, ascending, those without a reading too; none
/// before the period begins.
[[nodiscard]] std::vector<DayHalves> calcLastDays(const ReadingList& readings, const Period& period);

/// Those that share a day with the period, the last to begin first. The list's.
[[nodiscard]] std::vector<const CommentModel*> commentsOfPeriod(const CommentList& comments,
                                                                const Period& period);

} // namespace zel

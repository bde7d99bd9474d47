#include "analysis/Summary.h"

#include "analysis/CommentDays.h"

#include <algorithm>

namespace zel {

namespace {

bool isOfSummary(const ReadingModel& reading, const Period& period) {
    return isInSummary(reading, summarySelection(period));
}

void addFlag(SummaryFigures& figures, const ReadingModel& reading) {
    if (!reading.isAFib() && !reading.isPad()) return;
    FlaggedReadings& kind = reading.isAFib() ? figures.afib : figures.pad;
    ++kind.examined;
    constexpr std::uint32_t flaggedPad = 2, flaggedAFib = 5;
    if (reading.Arrhythmia == flaggedPad || reading.Arrhythmia == flaggedAFib) ++kind.flagged;
}

} // namespace

ReadingSelection summarySelection(const Period& period) {
    return {.period = period, .view = ViewSelection::custom, .includeUndated = false};
}

SummaryFigures calcSummary(const ReadingList& readings, const Period& period) {
    SummaryFigures figures;
    for (const ReadingModel& reading : readings) {
        if (!isOfSummary(reading, period)) continue;
        figures.all.add(reading);
        (reading.isPMData ? figures.evening : figures.morning).add(reading);
        addFlag(figures, reading);
        if (reading.isManual) ++figures.typedIn;
    }
    return figures;
}

int countHighReadings(const ReadingList& readings, const Period& period, const LimitPair& limits) {
    return static_cast<int>(std::ranges::count_if(readings, [&](const ReadingModel& reading) {
        return (isSysHigh(reading, limits) || isDiaHigh(reading, limits)) && isOfSummary(reading, period);
    }));
}

bool isAnyDated(const ReadingList& readings) {
    return !std::ranges::all_of(readings, &ReadingModel::isUndated);
}

int countOfOtherZone(const ReadingList& readings, const Period& period) {
    return static_cast<int>(std::ranges::count_if(readings, [&](const ReadingModel& reading) {
        return reading.isOfOtherZone && isOfSummary(reading, period);
    }));
}

std::optional<DayNumber> lastDayOf(const ReadingList& readings, const Period& period) {
    std::optional<DayNumber> last;
    for (const ReadingModel& reading : readings)
        if (isOfSummary(reading, period)) last = std::max(last.value_or(reading.day), reading.day);
    return last;
}

std::vector<DayHalves> calcLastDays(const ReadingList& readings, const Period& period) {
    const std::optional<DayNumber> last = lastDayOf(readings, period);
    if (!last) return {};
    const DayNumber first = std::max(*last - (lastDaysOnSummary - 1), LocalZone{}.day(period.begin));
    std::vector<DayHalves> days;
    days.reserve(lastDaysOnSummary);
    for (DayNumber day = first; day <= *last; ++day)
        days.push_back({.day = day});
    for (const ReadingModel& reading : readings)
        if (reading.day >= first && isOfSummary(reading, period)) {
            DayHalves& day = days[static_cast<std::size_t>(reading.day - first)];
            (reading.isPMData ? day.evening : day.morning).add(reading);
        }
    return days;
}

std::vector<const CommentModel*> commentsOfPeriod(const CommentList& comments, const Period& period) {
    const LocalZone zone;
    const DayNumber first = zone.day(period.begin), last = zone.day(period.end);
    std::vector<const CommentModel*> found;
    for (const auto& comment : comments)
        if (const auto days = commentDays(*comment); days && days->begin <= last && first <= days->end)
            found.push_back(comment.get());
    std::ranges::reverse(found);
    std::ranges::stable_sort(found, std::ranges::greater{}, [](const CommentModel* comment) {
        return commentDays(*comment).value_or(CommentDays()).begin;
    });
    return found;
}

} // namespace zel

#include "analysis/DisplayPeriod.h"

#include <algorithm>
#include <utility>

namespace zel {

namespace {

constexpr int defaultMonths = 3;
constexpr int viewAllDays = 91;
constexpr int commentPlacingDays = 47;

Period wholeDays(const Period& period) {
    return {DateToDayBoundary(period.begin, true), DateToDayBoundary(period.end, false)};
}

/// From the earliest dated reading to the latest, or none.
std::optional<Period> datedPeriod(const ReadingList& readings) {
    std::optional<Period> span;
    for (const ReadingModel& reading : readings) {
        if (reading.isUndated()) continue;
        const Instant date = *reading.ReadingDate;
        if (!span) span = Period{date, date};
        span = Period{std::min(span->begin, date), std::max(span->end, date)};
    }
    return span;
}

} // namespace

DisplayPeriod::DisplayPeriod(Instant now)
    : firstDayOfThisYear{FirstDayOfThisYear(now)},
      display{wholeDays({firstDayOfThisYear, firstDayOfThisYear})}, data{firstDayOfThisYear,
                                                                         firstDayOfThisYear} {}

void DisplayPeriod::change(const std::function<void()>& assign) {
    const ReadingSelection before = selection();
    assign();
    if (selection() != before) emit changed();
}

void DisplayPeriod::setTimePeriod(Date begin, Date end) {
    change([&] {
        display = {begin ? DateToDayBoundary(*begin, true) : firstDayOfThisYear,
                   end ? DateToDayBoundary(*end, false) : firstDayOfThisYear};
        if (view == ViewSelection::viewAll && !isWholeDataPeriod()) leaveViewChoice();
    });
}

void DisplayPeriod::leaveViewChoice() {
    view = ViewSelection::custom;
    includeUndated = false;
}

void DisplayPeriod::setDataPeriod(const Period& period) { data = period; }

void DisplayPeriod::setSelectViewIndex(ViewSelection chosen) {
    change([&] {
        if (chosen == ViewSelection::custom) return leaveViewChoice();
        view = chosen;
        if (view == ViewSelection::viewAll) display = wholeDays(data);
    });
}

void DisplayPeriod::setIncludeNoDatetimeData(bool include) {
    change([&] { includeUndated = include && view != ViewSelection::custom; });
}

bool DisplayPeriod::pickTimePeriod(Instant begin, Instant end) {
    if (!greaterInDay(end, begin)) return false;
    change([&] {
        leaveViewChoice();
        display = wholeDays({begin, end});
    });
    return true;
}

void DisplayPeriod::setChangeUser(bool isChanged) {
    changedUser = isChanged;
    if (!isChanged) return;
    setSelectViewIndex(ViewSelection::custom);
    setWeekEnd({});
}

void DisplayPeriod::setWeekRule(AverageRule rule) {
    if (std::exchange(weekRule, rule) != rule) emit weekChanged();
}

void DisplayPeriod::setWeekEnd(std::optional<DayNumber> end) {
    if (std::exchange(weekEnd, end) != end) emit weekChanged();
}

Period DisplayPeriod::dataPeriodOf(const ReadingList& readings) const {
    return datedPeriod(readings).value_or(Period{firstDayOfThisYear, firstDayOfThisYear});
}

void DisplayPeriod::setCurrentReadingTimePeriod(const ReadingList& readings) {
    setDataPeriod(dataPeriodOf(readings));
    setTimePeriod(getDefaultBeginDisplayDate(data.begin, data.end), data.end);
}

void DisplayPeriod::refreshDataPeriod(const ReadingList& readings) {
    const Period dated = dataPeriodOf(readings);
    if (dated == data) return;
    setDataPeriod(dated);
    if (view == ViewSelection::viewAll) display = wholeDays(data);
    if (display == wholeDays({firstDayOfThisYear, firstDayOfThisYear}))
        display = wholeDays({getDefaultBeginDisplayDate(data.begin, data.end), data.end});
    emit changed(); // who shows how far the data go has to know, too
}

void DisplayPeriod::adjustViewAll() {
    if (!changedUser || DayDiff(data.begin, data.end) >= viewAllDays) return;
    setSelectViewIndex(ViewSelection::viewAll);
}

bool DisplayPeriod::isWholeDataPeriod() const { return display == wholeDays(data); }

bool DisplayPeriod::isValidCommentTimeRange() const {
    return DayDiff(display.begin, display.end) < commentPlacingDays;
}

Instant DisplayPeriod::getDefaultBeginDisplayDate(Instant begin, Instant end) {
    return std::max(begin, getDateMonthAgo(end, defaultMonths));
}

} // namespace zel

#include "analysis/DisplayPeriod.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace zel {

namespace {

constexpr int defaultMonths = 3;
constexpr int viewAllDays = 91;
constexpr int daysOfMeasuringWeek = 7;
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

HalfOfDay halfOf(ViewSelection view) {
    if (view == ViewSelection::amOnly) return HalfOfDay::morning;
    return view == ViewSelection::pmOnly ? HalfOfDay::evening : HalfOfDay::both;
}

/// None for a day that no date text can name.
Date firstInstant(DayNumber day) { return StrToDate(dayText(day), QStringLiteral("yyyy/MM/dd")); }

} // namespace

DisplayPeriod::DisplayPeriod(Instant now)
    : firstDayOfThisYear{FirstDayOfThisYear(now)},
      display{wholeDays({firstDayOfThisYear, firstDayOfThisYear})}, data{firstDayOfThisYear,
                                                                         firstDayOfThisYear} {}

void DisplayPeriod::change(const std::function<void()>& assign) {
    const auto state = [this] { return std::tuple(selection(), choice, half); };
    const auto before = state();
    assign();
    if (state() != before) emit changed();
}

void DisplayPeriod::setTimePeriod(Date begin, Date end) {
    change([&] {
        display = {begin ? DateToDayBoundary(*begin, true) : firstDayOfThisYear,
                   end ? DateToDayBoundary(*end, false) : firstDayOfThisYear};
        if (display != daysOf(choice)) leaveChoice();
    });
}

void DisplayPeriod::leaveChoice() {
    choice = PeriodChoice::picked;
    includeUndated = false;
}

/// A reading that does not count, as one left out for its wrong date, must not have the days before it show
/// nothing.
Period DisplayPeriod::upToLast(const std::function<Period(Instant)>& daysUpTo) const {
    const Period days = daysUpTo(data.end);
    const Date counted = firstInstant(lastMeasured);
    return !counted || days.contains(*counted) ? days : daysUpTo(*counted);
}

Period DisplayPeriod::lastDaysOfData(int days) const {
    return upToLast([days](Instant last) { return lastDays(last, days); });
}

Period DisplayPeriod::usualDays() const {
    return upToLast([this](Instant last) {
        return wholeDays({getDefaultBeginDisplayDate(data.begin, last), last});
    });
}

/// Those shown where they are picked.
Period DisplayPeriod::daysOf(PeriodChoice wanted) const {
    if (wanted == PeriodChoice::picked) return display;
    if (!isAnyDated) return wholeDays(data);
    switch (wanted) {
    case PeriodChoice::last7: return lastDaysOfData(7);
    case PeriodChoice::last30: return lastDaysOfData(30);
    case PeriodChoice::last90: return lastDaysOfData(90);
    case PeriodChoice::measuringWeek:
        return lastDays(firstInstant(weekEnd.value_or(lastMeasured)).value_or(data.end), daysOfMeasuringWeek);
    case PeriodChoice::all:
    case PeriodChoice::picked: break;
    }
    return wholeDays(data);
}

void DisplayPeriod::choose(PeriodChoice chosen) {
    change([&] {
        choice = chosen;
        if (choice != PeriodChoice::all) includeUndated = false;
        display = daysOf(choice);
    });
}

void DisplayPeriod::setHalfOfDay(HalfOfDay chosen) {
    change([&] { half = chosen; });
}

ViewSelection DisplayPeriod::getSelectViewIndex() const {
    if (half == HalfOfDay::morning) return ViewSelection::amOnly;
    if (half == HalfOfDay::evening) return ViewSelection::pmOnly;
    return choice == PeriodChoice::all ? ViewSelection::viewAll : ViewSelection::custom;
}

void DisplayPeriod::setSelectViewIndex(ViewSelection chosen) {
    change([&] {
        half = halfOf(chosen);
        if (chosen == ViewSelection::custom) leaveChoice();
        if (chosen != ViewSelection::viewAll) return;
        choice = PeriodChoice::all;
        display = daysOf(choice);
    });
}

void DisplayPeriod::setIncludeNoDatetimeData(bool include) {
    change([&] { includeUndated = include && choice == PeriodChoice::all; });
}

bool DisplayPeriod::pickTimePeriod(Instant begin, Instant end) {
    if (!greaterInDay(end, begin)) return false;
    change([&] {
        leaveChoice();
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
    if (std::exchange(weekEnd, end) == end) return;
    emit weekChanged();
    if (choice == PeriodChoice::measuringWeek) choose(choice);
}

void DisplayPeriod::take(const ReadingList& readings) {
    const auto dated = datedPeriod(readings);
    isAnyDated = dated.has_value();
    data = dated.value_or(Period{firstDayOfThisYear, firstDayOfThisYear});
    lastMeasured = lastMeasuringDay(readings);
}

void DisplayPeriod::setCurrentReadingTimePeriod(const ReadingList& readings) {
    take(readings);
    const Period usual = usualDays();
    setTimePeriod(usual.begin, usual.end);
}

void DisplayPeriod::refreshDataPeriod(const ReadingList& readings) {
    const auto state = [this] { return std::tuple(data, isAnyDated, lastMeasured); };
    const auto before = state();
    const bool reachesLast = isAnyDated && display.end == wholeDays(data).end;
    const bool reachesUsual = isAnyDated && display.end == usualDays().end;
    take(readings);
    if (state() == before) return;
    const bool wasNone = display == wholeDays({firstDayOfThisYear, firstDayOfThisYear});
    if (choice == PeriodChoice::picked && wasNone) display = usualDays();
    if (choice == PeriodChoice::picked && (reachesLast || reachesUsual))
        display.end = std::max(display.end, (reachesLast ? wholeDays(data) : usualDays()).end);
    if (choice != PeriodChoice::picked) display = daysOf(choice);
    emit changed(); // who shows how far the data go has to know, too
}

void DisplayPeriod::adjustViewAll() {
    if (!changedUser || DayDiff(data.begin, data.end) >= viewAllDays) return;
    choose(PeriodChoice::all);
}

bool DisplayPeriod::isValidCommentTimeRange() const {
    return DayDiff(display.begin, display.end) < commentPlacingDays;
}

Instant DisplayPeriod::getDefaultBeginDisplayDate(Instant begin, Instant end) {
    return std::max(begin, getDateMonthAgo(end, defaultMonths));
}

} // namespace zel

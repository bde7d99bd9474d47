#include "analysis/DisplayPeriod.h"

#include <algorithm>

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
    });
}

void DisplayPeriod::setDataPeriod(const Period& period) { data = period; }

void DisplayPeriod::setSelectViewIndex(ViewSelection chosen) {
    change([&] {
        view = chosen;
        if (view == ViewSelection::viewAll) display = wholeDays(data);
    });
}

void DisplayPeriod::setIncludeNoDatetimeData(bool include) {
    change([&] { includeUndated = include; });
}

bool DisplayPeriod::pickTimePeriod(Instant begin, Instant end) {
    if (!greaterInDay(end, begin)) return false;
    change([&] {
        view = ViewSelection::custom;
        display = wholeDays({begin, end});
    });
    return true;
}

void DisplayPeriod::setChangeUser(bool isChanged) {
    changedUser = isChanged;
    if (isChanged) setSelectViewIndex(ViewSelection::custom);
}

void DisplayPeriod::setCurrentReadingTimePeriod(const ReadingList& readings) {
    const auto dated = datedPeriod(readings);
    hasDatedReading = dated.has_value();
    if (dated) setDataPeriod(*dated);
    if (dated)
        setTimePeriod(getDefaultBeginDisplayDate(dated->begin, dated->end), dated->end);
    else
        setTimePeriod(firstDayOfThisYear, firstDayOfThisYear);
}

void DisplayPeriod::refreshDataPeriod(const ReadingList& readings) {
    const auto dated = datedPeriod(readings);
    if (!dated || (hasDatedReading && *dated == data)) return;
    hasDatedReading = true;
    setDataPeriod(*dated);
    if (view == ViewSelection::viewAll) display = wholeDays(data);
    if (display == wholeDays({firstDayOfThisYear, firstDayOfThisYear}))
        display = wholeDays({getDefaultBeginDisplayDate(data.begin, data.end), data.end});
    emit changed(); // who shows how far the data go has to know, too
}

void DisplayPeriod::adjustViewAll() {
    if (!changedUser || DayDiff(data.begin, data.end) >= viewAllDays) return;
    change([&] {
        view = ViewSelection::viewAll;
        if (hasDatedReading) display = wholeDays(data);
    });
}

bool DisplayPeriod::isValidCommentTimeRange() const {
    return DayDiff(display.begin, display.end) < commentPlacingDays;
}

Instant DisplayPeriod::getDefaultBeginDisplayDate(Instant begin, Instant end) {
    return std::max(begin, getDateMonthAgo(end, defaultMonths));
}

} // namespace zel

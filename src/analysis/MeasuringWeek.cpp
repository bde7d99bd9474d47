#include "analysis/MeasuringWeek.h"

#include "analysis/ReadingSelection.h"

#include <QStringList>

#include <algorithm>

namespace zel {

namespace {

constexpr DayNumber daysOfWeek = 7;

/// How many readings the days of a week have, before noon and from noon on.
struct ReadingsOfDay {
    int mornings = 0;
    int evenings = 0;

    [[nodiscard]] int all() const { return mornings + evenings; }
};
using WeekDays = std::array<ReadingsOfDay, daysOfWeek>;

bool isOnDayOf(const MeasuringWeek& week, const ReadingModel& reading) {
    return week.begin <= reading.day && reading.day <= week.end;
}

bool isOfWeek(const ReadingModel& reading, const MeasuringWeek& week) {
    return isAveraged(reading) && isOnDayOf(week, reading);
}

bool isDatedExcluded(const ReadingModel& reading) { return reading.isExcluded() && !reading.isUndated(); }

/// Where no reading counts, those of the week that they would make.
DayNumber firstOfExcludedWeek(const ReadingList& readings) {
    DayNumber last = noDay;
    for (const ReadingModel& reading : readings)
        if (isDatedExcluded(reading)) last = std::max(last, reading.day);
    return last == noDay ? noDay : last - (daysOfWeek - 1);
}

/// What is not counted, and why.
void countLeftOut(MeasuringWeek& week, const ReadingList& readings, bool isEndTold) {
    const bool isNone = week.end == noDay;
    const DayNumber begin = isNone ? firstOfExcludedWeek(readings) : week.begin;
    for (const ReadingModel& reading : readings) {
        if (isAveraged(reading) || reading.isUndated() || reading.day < begin) continue;
        const bool isLater = !isNone && reading.day > week.end;
        if (isLater && isEndTold) continue;
        if (!reading.isExcluded())
            ++week.unmeasured;
        else
            ++(isLater ? week.excludedLater : week.excluded);
    }
}

WeekDays daysOf(const ReadingList& readings, const MeasuringWeek& week) {
    WeekDays days;
    for (const ReadingModel& reading : readings)
        if (isOfWeek(reading, week)) {
            ReadingsOfDay& day = days[static_cast<std::size_t>(reading.day - week.begin)];
            ++(reading.isPMData ? day.evenings : day.mornings);
        }
    return days;
}

void addMeans(MeasuringWeek& week, const ReadingList& readings) {
    for (const ReadingModel& reading : readings) {
        if (!isOfWeek(reading, week)) continue;
        if (reading.isOfOtherZone) ++week.ofOtherZone;
        if (reading.day < week.firstUsed) continue;
        week.all.add(reading);
        (reading.isPMData ? week.evening : week.morning).add(reading);
    }
}

void addMissing(MeasuringWeek& week, const ReadingsOfDay& day, int perHalfDay) {
    week.missingMornings += std::max(0, perHalfDay - day.mornings);
    week.missingEvenings += std::max(0, perHalfDay - day.evenings);
}

/// \return where the days that count begin within the week
std::size_t countDays(MeasuringWeek& week, const WeekDays& days, const AverageRuleFacts& facts) {
    std::size_t firstUsed = 0;
    for (std::size_t at = 0; at < days.size(); ++at) {
        if (days[at].all() == 0) continue;
        if (facts.isFirstDayLeftOut && week.daysLeftOut == 0) {
            week.daysLeftOut = 1;
            week.readingsLeftOut = days[at].all();
            firstUsed = at + 1;
            continue;
        }
        ++week.daysUsed;
        addMissing(week, days[at], facts.perHalfDay);
    }
    return firstUsed;
}

} // namespace

bool isUsed(const ReadingModel& reading, const MeasuringWeek& week) {
    return isOfWeek(reading, week) && reading.day >= week.firstUsed;
}

DayNumber lastMeasuringDay(const ReadingList& readings) {
    DayNumber last = noDay;
    for (const ReadingModel& reading : readings)
        if (isAveraged(reading)) last = std::max(last, reading.day);
    return last;
}

std::optional<AverageRule> averageRuleNamed(const QString& key) {
    const auto* found = std::ranges::find_if(
        averageRules, [&key](const AverageRuleFacts& facts) { return key == QLatin1String(facts.key); });
    return found == averageRules.end() ? std::nullopt : std::optional(found->rule);
}

bool MeasuringWeek::isComplete() const {
    return missingDays + missingReadings + missingMornings + missingEvenings == 0;
}

bool MeasuringWeek::reachesThreshold() const {
    const AverageRuleFacts& facts = factsOf(rule);
    return all.sys.isAtLeast(facts.sysThreshold) || all.dia.isAtLeast(facts.diaThreshold);
}

MeasuringWeek calcMeasuringWeek(const ReadingList& readings, AverageRule rule, std::optional<DayNumber> end) {
    const AverageRuleFacts& facts = factsOf(rule);
    MeasuringWeek week{.rule = rule, .end = end.value_or(lastMeasuringDay(readings))};
    if (week.end != noDay) {
        week.begin = week.end - (daysOfWeek - 1);
        week.firstUsed = week.begin + static_cast<DayNumber>(countDays(week, daysOf(readings, week), facts));
        addMeans(week, readings);
    }
    countLeftOut(week, readings, end.has_value());
    week.missingDays = std::max(0, facts.days - week.daysUsed - week.daysLeftOut);
    week.missingReadings = std::max(0, facts.readings - static_cast<int>(week.readingsUsed()));
    return week;
}

QString describeMissing(const MeasuringWeek& week) {
    QStringList missing;
    if (week.missingDays > 0) missing += qtTrId("missingDays", week.missingDays);
    if (week.missingReadings > 0) missing += qtTrId("missingReadings", week.missingReadings);
    if (week.missingMornings > 0) missing += qtTrId("missingMornings", week.missingMornings);
    if (week.missingEvenings > 0) missing += qtTrId("missingEvenings", week.missingEvenings);
    return missing.join(qtTrId(", "));
}

} // namespace zel

#include "analysis/Trend.h"

#include "analysis/ValueCounts.h"

#include <algorithm>
#include <chrono>
#include <tuple>
#include <utility>

namespace zel {

namespace {

using std::chrono::days;
using std::chrono::sys_days;

constexpr std::int64_t fewestPoints = 30;
constexpr std::int64_t mostPoints = 120;

constexpr std::int64_t daysPerWeek = 7;
constexpr double daysOfMonth = 30.4;

/// Where the longer step misses the fewest points by less than the shorter one passes the most.
constexpr bool isLongerNearer(double longest, double shorter, double longer) {
    return longest / shorter / mostPoints > fewestPoints / (longest / longer);
}

struct DaySpan {
    DayNumber begin;
    DayNumber end;
};

DaySpan weekOf(DayNumber day) {
    const std::chrono::weekday weekday{sys_days{days{day}}};
    const DayNumber monday = day - static_cast<DayNumber>(weekday.iso_encoding()) + 1;
    return {monday, monday + static_cast<DayNumber>(daysPerWeek) - 1};
}

DaySpan monthOf(DayNumber day) {
    const std::chrono::year_month_day date{sys_days{days{day}}};
    const auto first = date.year() / date.month() / 1;
    const auto last = date.year() / date.month() / std::chrono::last;
    return {static_cast<DayNumber>(sys_days{first}.time_since_epoch().count()),
            static_cast<DayNumber>(sys_days{last}.time_since_epoch().count())};
}

DaySpan stepOf(TrendStep step, DayNumber day) {
    if (step == TrendStep::week) return weekOf(day);
    return step == TrendStep::month ? monthOf(day) : DaySpan{day, day};
}

/// Of one value at least.
TrendBand bandOf(ValueCounts& values) {
    const bool isFew = values.size() < fewestForPercentiles;
    return {values.quantile(isFew ? 0 : 0.1), values.quantile(0.5), values.quantile(isFew ? 1 : 0.9),
            values.size()};
}

std::optional<TrendBand> bandIfAny(ValueCounts& values) {
    if (values.size() == 0) return {};
    return bandOf(values);
}

/// Makes points of readings that come in the order of their steps, each with one look at it: of a long list,
/// fetching the readings from memory takes most of the time.
class PointMaker {
public:
    explicit PointMaker(TrendStep size) : step(size) {}

    /// \return false, and the reading is not counted, if it belongs before the step that is being made
    [[nodiscard]] bool add(const ReadingModel& reading) {
        if (count > 0 && reading.day < span.begin) return false;
        if (count > 0 && reading.day > span.end) finishPoint();
        if (count == 0) span = stepOf(step, reading.day);
        ++count;
        sys.add(reading.sys);
        dia.add(reading.dia);
        if (isMeasured(reading.pulse)) pulse.add(reading.pulse);
        return true;
    }
    [[nodiscard]] std::vector<TrendPoint> finish() {
        if (count > 0) finishPoint();
        return std::move(points);
    }

private:
    void finishPoint() {
        points.push_back({span.begin, span.end, count, bandOf(sys), bandOf(dia), bandIfAny(pulse)});
        count = 0;
        for (ValueCounts* values : {&sys, &dia, &pulse})
            values->clear();
    }

    TrendStep step;
    DaySpan span{noDay, noDay}; ///< of the step that is being made
    std::size_t count = 0;      ///< of its readings
    ValueCounts sys, dia, pulse;
    std::vector<TrendPoint> points;
};

std::vector<TrendPoint> sortedPoints(const ReadingList& readings, const ReadingSelection& selection,
                                     TrendStep step) {
    std::vector<const ReadingModel*> chosen;
    for (const ReadingModel& reading : readings)
        if (isInTrend(reading, selection)) chosen.push_back(&reading);
    std::ranges::sort(chosen, {}, &ReadingModel::day);
    PointMaker maker(step);
    for (const ReadingModel* reading : chosen)
        std::ignore = maker.add(*reading);
    return maker.finish();
}

std::vector<TrendPoint> pointsOf(const ReadingList& readings, const ReadingSelection& selection,
                                 TrendStep step) {
    PointMaker maker(step);
    for (const ReadingModel& reading : readings)
        if (isInTrend(reading, selection) && !maker.add(reading))
            return sortedPoints(readings, selection, step); // seldom
    return maker.finish();
}

bool isHalfOfDay(ViewSelection view) {
    return view == ViewSelection::amOnly || view == ViewSelection::pmOnly;
}

int otherZoneInTrend(const ReadingList& readings, const ReadingSelection& selection) {
    return static_cast<int>(std::ranges::count_if(readings, [&](const ReadingModel& reading) {
        return reading.isOfOtherZone && isInTrend(reading, selection);
    }));
}

} // namespace

TrendStep trendStepFor(std::int64_t periodDays) {
    if (periodDays <= 0) return TrendStep::day; // a period that ends before it begins
    const auto longest = static_cast<double>(periodDays);
    if (isLongerNearer(longest, daysPerWeek, daysOfMonth)) return TrendStep::month;
    return isLongerNearer(longest, 1, daysPerWeek) ? TrendStep::week : TrendStep::day;
}

Trend calcTrend(const ReadingList& readings, const ReadingSelection& selection) {
    const LocalZone zone;
    const DayNumber first = zone.day(selection.period.begin);
    const TrendStep step = trendStepFor(std::int64_t{zone.day(selection.period.end)} - first + 1);
    return {step, pointsOf(readings, selection, step)};
}

TrendSeriesList calcTrendSeries(const ReadingList& readings, const ReadingSelection& selection, bool apart) {
    std::vector<ViewSelection> halves{selection.view};
    if (apart) halves = {ViewSelection::amOnly, ViewSelection::pmOnly};
    TrendSeriesList list;
    for (const ViewSelection half : halves) {
        if (!MatchedDataType(selection.view, half == ViewSelection::pmOnly) && apart) continue;
        ReadingSelection part = selection;
        part.view = half;
        Trend trend = calcTrend(readings, part);
        list.step = trend.step;
        if (isHalfOfDay(half)) list.ofOtherZone += otherZoneInTrend(readings, part);
        list.series.push_back({half, std::move(trend.points)});
    }
    return list;
}

} // namespace zel

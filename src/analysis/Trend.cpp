#include "analysis/Trend.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <span>

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

/// \p values ascending. Between two of them in proportion to the distance.
double quantile(const std::vector<std::uint32_t>& values, double share) {
    const double place = share * static_cast<double>(values.size() - 1);
    const auto below = static_cast<std::size_t>(place);
    const std::size_t above = std::min(below + 1, values.size() - 1);
    const double low = values[below];
    return low + (values[above] - low) * (place - static_cast<double>(below));
}

/// By counting, where there are many of a person's pressures: in a fraction of the time.
void sortValues(std::vector<std::uint32_t>& values) {
    constexpr std::size_t many = 64;
    std::array<std::uint32_t, 512> counts{};
    if (values.size() < many || std::ranges::max(values) >= counts.size()) {
        std::ranges::sort(values);
        return;
    }
    for (const std::uint32_t value : values)
        ++counts[value];
    auto at = values.begin();
    for (std::uint32_t value = 0; value < counts.size(); ++value)
        at = std::fill_n(at, counts[value], value);
}

TrendBand bandOf(std::vector<std::uint32_t>& values) {
    sortValues(values);
    const bool isFew = values.size() < fewestForPercentiles;
    return {quantile(values, isFew ? 0 : 0.1), quantile(values, 0.5), quantile(values, isFew ? 1 : 0.9)};
}

using ReadingPointers = std::vector<const ReadingModel*>;

ReadingPointers inOrderOfDays(const ReadingList& readings, const ReadingSelection& selection) {
    ReadingPointers chosen;
    chosen.reserve(readings.size());
    for (const ReadingModel& reading : readings)
        if (isInChart(reading, selection)) chosen.push_back(&reading);
    const auto dayOf = [](const ReadingModel* reading) { return reading->day; };
    if (!std::ranges::is_sorted(chosen, {}, dayOf)) std::ranges::sort(chosen, {}, dayOf);
    return chosen;
}

using ReadingRange = std::span<const ReadingModel* const>;

TrendBand bandOf(ReadingRange readings, std::uint32_t ReadingModel::*measure,
                 std::vector<std::uint32_t>& values) {
    values.clear();
    values.reserve(readings.size());
    for (const ReadingModel* reading : readings)
        values.push_back(reading->*measure);
    return bandOf(values);
}

} // namespace

TrendStep trendStepFor(std::int64_t periodDays) {
    const auto longest = static_cast<double>(periodDays);
    if (periodDays > mostPoints * daysPerWeek && isLongerNearer(longest, daysPerWeek, daysOfMonth))
        return TrendStep::month;
    return periodDays > mostPoints && isLongerNearer(longest, 1, daysPerWeek) ? TrendStep::week
                                                                              : TrendStep::day;
}

Trend calcTrend(const ReadingList& readings, const ReadingSelection& selection) {
    const LocalZone zone;
    const DayNumber first = zone.day(selection.period.begin);
    Trend trend{.step = trendStepFor(std::int64_t{zone.day(selection.period.end)} - first + 1), .points = {}};
    const ReadingPointers chosen = inOrderOfDays(readings, selection);
    std::vector<std::uint32_t> values;
    for (auto at = chosen.begin(); at != chosen.end();) {
        const DaySpan span = stepOf(trend.step, (*at)->day);
        const auto next =
            std::find_if(at, chosen.end(), [end = span.end](auto* reading) { return reading->day > end; });
        const ReadingRange same(at, next);
        trend.points.push_back({span.begin, span.end, same.size(), bandOf(same, &ReadingModel::sys, values),
                                bandOf(same, &ReadingModel::dia, values),
                                bandOf(same, &ReadingModel::pulse, values)});
        at = next;
    }
    return trend;
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
        list.series.push_back({half, std::move(trend.points)});
    }
    return list;
}

} // namespace zel

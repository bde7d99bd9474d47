#include "chart/TimeAxis.h"

#include "chart/DateLabels.h"
#include "chart/Drawing.h"

#include <chrono>
#include <map>
#include <utility>
#include <vector>

namespace zel {

namespace {

using std::chrono::minutes;

constexpr int plainAttribute = 1;
constexpr int boldAttribute = 2;

/// Local midnight nearest to an instant: whole days of 24 h from a midnight are an hour off where the clocks
/// were changed in between.
Instant nearestMidnight(Instant date, const LocalZone& zone) {
    constexpr minutes day = std::chrono::days{1};
    const minutes sinceMidnight{zone.dayMinute(date).minute};
    return sinceMidnight < day / 2 ? date - sinceMidnight : date + (day - sinceMidnight);
}

std::vector<AxisDay> gridDays(const ChartScale& scale, int step, const LocalZone& zone) {
    using namespace std::chrono;
    const DayNumber first = zone.day(scale.time.begin);
    const DayNumber last = zone.day(scale.time.end);
    std::vector<AxisDay> grid;
    for (DayNumber day = first; day <= last; day += step) {
        const Instant midnight = nearestMidnight(scale.time.begin + days{day - first}, zone);
        grid.push_back({year_month_day{sys_days{days{day}}}, scale.time.calcXPos(midnight)});
    }
    return grid;
}

TextAttribute typeOf(bool bold) { return attribute(bold ? boldAttribute : plainAttribute); }

/// Measures each text once: there are a dozen names in a hundred years.
TextWidth measured() {
    return [widths = std::map<std::pair<QString, bool>, double>()](const QString& text, bool bold) mutable {
        const auto [width, isNew] = widths.try_emplace({text, bold});
        if (isNew) width->second = textSize(text, typeOf(bold)).width;
        return width->second;
    };
}

} // namespace

bool isShortPeriod(int days) {
    constexpr int longPeriod = 48;
    return days + 1 < longPeriod;
}

int dayDiff(const TimeScale& time, const LocalZone& zone) {
    return zone.day(time.end) - zone.day(time.begin);
}

int gridStep(int days) {
    if (days < 501) return 1;
    return days < 3651 ? 7 : 30;
}

void drawTimeAxis(Picture& picture, const ChartScale& scale, const LocalZone& zone) {
    const int days = dayDiff(scale.time, zone);
    if (days <= 0) return;
    const std::vector<AxisDay> grid = gridDays(scale, gridStep(days), zone);
    const QColor color = fixColor(gcGrayLinecolor);
    picture.reserve(picture.size() + grid.size() + 20); // and the readings
    picture.push_back(BeginClip{scale.chartRect});
    for (const AxisDay& day : grid)
        picture.push_back(StraightLine{{day.x, scale.chartRect.y}, {day.x, scale.chartRect.top()}, 1, color});
    picture.push_back(EndClip{});
}

void drawDateLabels(Picture& picture, const ChartScale& scale, double leftGap, const LocalZone& zone) {
    const int days = dayDiff(scale.time, zone);
    const std::vector<AxisDay> grid = gridDays(scale, gridStep(days), zone);
    constexpr double hairline = 0.25; // of a frame
    const LabelRoom room{scale.whiteRect.x + leftGap, scale.whiteRect.right() - hairline};
    const auto labels = isShortPeriod(days) ? dayLabels : monthLabels;
    for (const DateLabel& label : labels(grid, room, measured()))
        picture.emplace_back(
            TextLine{label.text, {label.x, scale.totalRect.y + label.above}, typeOf(label.bold)});
}

} // namespace zel

#include "chart/TimeAxis.h"

#include "chart/TextWidths.h"

#include <algorithm>
#include <chrono>
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

TextAttribute typeOf(bool bold) { return attribute(bold ? boldAttribute : plainAttribute); }

/// Measures each text once: there are a dozen names in a hundred years.
TextWidth measured() {
    return [widths = TextWidths()](const QString& text, bool bold) mutable {
        return widths.of(text, typeOf(bold));
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

AxisGrid::AxisGrid(const ChartScale& scale, const LocalZone& zone) : days(dayDiff(scale.time, zone)) {
    using namespace std::chrono;
    const DayNumber first = zone.day(scale.time.begin);
    const DayNumber last = zone.day(scale.time.end);
    const int step = gridStep(days);
    lines.reserve(static_cast<std::size_t>(std::max(0, last - first)) / static_cast<std::size_t>(step) + 1);
    for (DayNumber day = first; day <= last; day += step) {
        const Instant midnight = nearestMidnight(scale.time.begin + std::chrono::days{day - first}, zone);
        lines.push_back({year_month_day{sys_days{std::chrono::days{day}}}, scale.time.calcXPos(midnight)});
    }
}

void drawTimeAxis(Picture& picture, const ChartScale& scale, const AxisGrid& grid) {
    if (grid.days <= 0) return;
    const QColor color = fixColor(gcGrayLinecolor);
    picture.reserve(picture.size() + grid.lines.size() + 20); // and the readings
    picture.push_back(BeginClip{scale.chartRect});
    for (const AxisDay& day : grid.lines)
        picture.emplace_back(
            StraightLine{{day.x, scale.chartRect.y}, {day.x, scale.chartRect.top()}, 1, color});
    picture.push_back(EndClip{});
}

void drawDateLabels(Picture& picture, const ChartScale& scale, double leftGap, const AxisGrid& grid) {
    constexpr double hairline = 0.25; // of a frame
    const LabelRoom room{scale.whiteRect.x + leftGap, scale.whiteRect.right() - hairline};
    const auto labels = isShortPeriod(grid.days) ? dayLabels : monthLabels;
    for (const DateLabel& label : labels(grid.lines, room, measured()))
        picture.emplace_back(
            TextLine{label.text, {label.x, scale.totalRect.y + label.above}, typeOf(label.bold)});
}

} // namespace zel

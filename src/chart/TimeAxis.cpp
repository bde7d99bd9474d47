#include "chart/TimeAxis.h"

#include "chart/Drawing.h"

#include <QLocale>

#include <algorithm>
#include <chrono>
#include <limits>
#include <map>
#include <vector>

namespace zel {

namespace {

using std::chrono::minutes;

constexpr int dayAttribute = 1;
constexpr int boldAttribute = 2;

/// A day of the grid. The instant is its local midnight.
struct GridDay {
    std::chrono::year_month_day date;
    bool isWeekend = false;
    double x = 0;
};

/// Local midnight nearest to an instant: whole days of 24 h from a midnight are an hour off where the clocks
/// were changed in between.
Instant nearestMidnight(Instant date, const LocalZone& zone) {
    constexpr minutes day = std::chrono::days{1};
    const minutes sinceMidnight{zone.dayMinute(date).minute};
    return sinceMidnight < day / 2 ? date - sinceMidnight : date + (day - sinceMidnight);
}

std::vector<GridDay> gridDays(const ChartScale& scale, int step, const LocalZone& zone) {
    using namespace std::chrono;
    const DayNumber first = zone.day(scale.time.begin);
    const DayNumber last = zone.day(scale.time.end);
    std::vector<GridDay> grid;
    for (DayNumber day = first; day <= last; day += step) {
        const sys_days date{days{day}};
        const Instant midnight = nearestMidnight(scale.time.begin + days{day - first}, zone);
        const weekday name{date};
        grid.push_back(
            {year_month_day{date}, name == Saturday || name == Sunday, scale.time.calcXPos(midnight)});
    }
    return grid;
}

QString monthName(const GridDay& day) {
    return QLocale::c().standaloneMonthName(static_cast<int>(static_cast<unsigned>(day.date.month())));
}

QString yearText(const GridDay& day) {
    return QString::number(static_cast<int>(day.date.year())).rightJustified(4, u'0');
}

/// Short period: the number of each day, and month and year where they begin.
void drawDayLabel(Picture& picture, const ChartScale& scale, const GridDay& day, bool newMonth) {
    const double y = scale.totalRect.y;
    textOut(picture, QString::number(static_cast<unsigned>(day.date.day())), {day.x + 2, y + dateHeight - 1},
            attribute(day.isWeekend ? boldAttribute : dayAttribute));
    if (newMonth)
        textOut(picture, monthName(day) + u' ' + yearText(day), {day.x, y}, attribute(boldAttribute));
}

/// The years of a long period, where each begins; one that the next would run into is left out.
void drawYears(Picture& picture, const ChartScale& scale, std::vector<GridDay> years) {
    std::ranges::reverse(years);
    double limit = std::numeric_limits<double>::max();
    for (const GridDay& year : years) {
        const double width = textSize(yearText(year), attribute(boldAttribute)).width;
        if (year.x + width > limit) continue;
        textOut(picture, yearText(year), {year.x, scale.totalRect.y}, attribute(boldAttribute));
        limit = year.x;
    }
}

/// Month names of a long period, from the right; one that would run into the next to its right is left out.
/// The rightmost has no room of its own and never shows.
void drawMonthNames(Picture& picture, const ChartScale& scale, std::vector<GridDay> months) {
    std::ranges::reverse(months);
    std::map<QString, double> widths; // of a dozen names in a hundred years
    double limit = -1000;
    for (const GridDay& month : months) {
        const QString name = monthName(month);
        const auto [width, isNew] = widths.try_emplace(name);
        if (isNew) width->second = textSize(name, attribute(boldAttribute)).width;
        if (month.x + width->second <= limit)
            textOut(picture, name, {month.x, scale.totalRect.y + dateHeight}, attribute(boldAttribute));
        limit = month.x;
    }
}

void drawLabels(Picture& picture, const ChartScale& scale, const std::vector<GridDay>& grid, bool isShort) {
    std::vector<GridDay> months;
    std::vector<GridDay> years;
    std::chrono::year_month_day previous{}; // before all dates: the first day gets its labels
    for (const GridDay& day : grid) {
        const bool newYear = day.date.year() != previous.year();
        const bool newMonth = newYear || day.date.month() != previous.month();
        if (isShort)
            drawDayLabel(picture, scale, day, newMonth);
        else if (newYear)
            years.push_back(day);
        if (!isShort && day.date.month() != previous.month()) months.push_back(day);
        previous = day.date;
    }
    drawYears(picture, scale, std::move(years));
    drawMonthNames(picture, scale, std::move(months));
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

void drawTimeAxis(Picture& picture, const ChartScale& scale, bool labels, const LocalZone& zone) {
    const int days = dayDiff(scale.time, zone);
    if (days <= 0) return;
    const std::vector<GridDay> grid = gridDays(scale, gridStep(days), zone);
    if (labels) drawLabels(picture, scale, grid, isShortPeriod(days));
    const QColor color = fixColor(gcGrayLinecolor);
    picture.reserve(picture.size() + grid.size() + 20); // and the readings
    picture.push_back(BeginClip{scale.chartRect});
    for (const GridDay& day : grid)
        picture.push_back(StraightLine{{day.x, scale.chartRect.y}, {day.x, scale.chartRect.top()}, 1, color});
    picture.push_back(EndClip{});
}

} // namespace zel

#include "chart/ReadingLines.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace zel {

namespace {

constexpr std::chrono::seconds longestJoin{2592000}; // 30 days
/// Marks reach that far around their point.
constexpr double markReach = 3;

/// The period that shows in the plot, with what reaches into it from the sides.
Period periodInReach(const ChartScale& scale) {
    return {scale.time.XPosToDate(scale.chartRect.x - markReach),
            scale.time.XPosToDate(scale.chartRect.right() + markReach)};
}

/// Of one column, four points are enough: the first, the lowest, the highest and the last.
void addToRun(std::vector<PolyLine>& runs, Point point, bool joined) {
    if (!joined) runs.emplace_back();
    std::vector<Point>& points = runs.back().points;
    constexpr std::size_t enough = 4;
    if (points.size() < enough || points[points.size() - enough].x != point.x) {
        points.push_back(point);
        return;
    }
    const std::span<Point> column = std::span(points).last(enough);
    double low = point.y;
    double high = low;
    for (const Point& each : column) {
        low = std::min(low, each.y);
        high = std::max(high, each.y);
    }
    column[1].y = low;
    column[2].y = high;
    column[3] = point;
}

void addPoint(std::vector<ChartPoint>& points, const ChartScale& scale, Point at,
              const ChartReading& reading) {
    if (scale.chartRect.contains(at))
        points.push_back({static_cast<float>(at.x), static_cast<float>(at.y), reading.reading});
}

/// Where the values of one kind lie. There are few of them and many readings: each usual one is worked out
/// once.
class Heights {
public:
    using Map = double (ChartScale::*)(double) const;
    Heights(const ChartScale& chartScale, Map valueToY) : scale(chartScale), map(valueToY) {
        for (std::size_t value = 0; value < usual.size(); ++value)
            usual[value] = heightOf(static_cast<std::uint32_t>(value));
    }
    [[nodiscard]] double operator()(std::uint32_t value) const {
        return value < usual.size() ? usual[value] : heightOf(value);
    }

private:
    [[nodiscard]] double heightOf(std::uint32_t value) const { return std::trunc((scale.*map)(value)); }

    const ChartScale& scale;
    Map map;
    std::array<double, 300> usual{};
};

/// Counts a reading by its values, if it lies in the period.
void countInPeriod(ReadingLines& made, const ChartScale& scale, Instant date,
                   std::initializer_list<ScaledValue> values) {
    if (date < scale.time.begin || date > scale.time.end) return;
    ++made.inPeriod;
    countOffScale(made.offScale, values);
}

/// What is left out stands apart: no line, no tick, no count but its own.
void addHollow(ReadingLines& made, const ChartScale& scale, const ChartReading& reading,
               std::initializer_list<Point> marks) {
    constexpr double diameter = 6;
    for (const Point& mark : marks)
        made.hollow.push_back({mark, diameter, false, Qt::black});
    if (reading.date >= scale.time.begin && reading.date <= scale.time.end) ++made.excluded;
}

/// A hundred at one place look like one.
void thin(std::vector<Circle>& circles) {
    const auto place = [](const Circle& circle) { return std::pair{circle.centre.x, circle.centre.y}; };
    std::ranges::sort(circles, {}, place);
    const auto isSame = [&place](const Circle& one, const Circle& next) { return place(one) == place(next); };
    circles.erase(std::unique(circles.begin(), circles.end(), isSame), circles.end());
}

/// Calls \p add with each accepted reading, its x, and whether it is joined to the one before.
template <class Add>
void forEachAccepted(std::span<const ChartReading> readings, const ChartScale& scale, ViewSelection view,
                     Add add) {
    std::optional<Instant> previous;
    for (const ChartReading& reading : readings) {
        if (!MatchedDataType(view, reading.isPMData)) continue;
        const bool joined = previous && reading.date - *previous <= longestJoin;
        // Cut off by hand: the library's function takes longer than the rest of it.
        const auto x = static_cast<double>(static_cast<std::int64_t>(scale.time.calcXPos(reading.date)));
        add(reading, x, joined);
        if (!reading.isExcluded) previous = reading.date;
    }
}

} // namespace

ReadingLines bloodLines(const std::vector<ChartReading>& all, const ChartScale& scale, ViewSelection view) {
    const auto readings = readingsAround(all, periodInReach(scale), view);
    ReadingLines made;
    made.marks.points.reserve(2 * readings.size());
    std::vector<PolyLine> diaRuns;
    const ScaleRange range = scale.bloodRange();
    made.ticks.color = fixColor(gcBloodWhiteLinecolor);
    made.ticks.ticks.reserve(readings.size());
    const Heights heights(scale, &ChartScale::mapValToY);
    forEachAccepted(readings, scale, view, [&](const ChartReading& reading, double x, bool joined) {
        const Point sys{x, heights(reading.sys)};
        const Point dia{x, heights(reading.dia)};
        if (reading.isExcluded) return addHollow(made, scale, reading, {sys, dia});
        addToRun(made.lines, sys, joined);
        addToRun(diaRuns, dia, joined);
        made.marks.points.push_back(sys);
        made.marks.points.push_back(dia);
        made.ticks.ticks.push_back({x, sys.y, dia.y});
        countInPeriod(made, scale, reading.date, {{reading.sys, range}, {reading.dia, range}});
    });
    made.count = made.ticks.ticks.size();
    thin(made.hollow);
    made.lines.insert(made.lines.end(), std::make_move_iterator(diaRuns.begin()),
                      std::make_move_iterator(diaRuns.end()));
    return made;
}

ReadingLines pulseLines(const std::vector<ChartReading>& all, const ChartScale& scale, ViewSelection view) {
    const auto readings = readingsAround(all, periodInReach(scale), view);
    ReadingLines made;
    const ScaleRange range = scale.pulseRange();
    made.marks.points.reserve(readings.size());
    const Heights heights(scale, &ChartScale::mapPulseValToY);
    forEachAccepted(readings, scale, view, [&](const ChartReading& reading, double x, bool joined) {
        const Point pulse{x, heights(reading.pulse)};
        if (reading.isExcluded) return addHollow(made, scale, reading, {pulse});
        addToRun(made.lines, pulse, joined);
        made.marks.points.push_back(pulse);
        countInPeriod(made, scale, reading.date, {{reading.pulse, range}});
    });
    made.count = made.marks.points.size();
    thin(made.hollow);
    return made;
}

std::vector<ChartPoint> bloodPoints(const std::vector<ChartReading>& all, const ChartScale& scale,
                                    ViewSelection view) {
    std::vector<ChartPoint> points;
    const auto readings = readingsAround(all, periodInReach(scale), view);
    points.reserve(2 * readings.size());
    const Heights heights(scale, &ChartScale::mapValToY);
    forEachAccepted(readings, scale, view, [&](const ChartReading& reading, double x, bool) {
        addPoint(points, scale, {x, heights(reading.sys)}, reading);
        addPoint(points, scale, {x, heights(reading.dia)}, reading);
    });
    return points;
}

std::vector<ChartPoint> pulsePoints(const std::vector<ChartReading>& all, const ChartScale& scale,
                                    ViewSelection view) {
    std::vector<ChartPoint> points;
    const auto readings = readingsAround(all, periodInReach(scale), view);
    points.reserve(readings.size());
    const Heights heights(scale, &ChartScale::mapPulseValToY);
    forEachAccepted(readings, scale, view, [&](const ChartReading& reading, double x, bool) {
        addPoint(points, scale, {x, heights(reading.pulse)}, reading);
    });
    return points;
}

} // namespace zel

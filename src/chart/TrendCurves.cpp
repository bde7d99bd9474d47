#include "chart/TrendCurves.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <optional>
#include <span>

namespace zel {

namespace {

constexpr double lineWidth = 2;
constexpr double markDiameter = 5;
constexpr double roomForMarks = 20;   ///< of a step, for each point to have one and its dashes to be seen
constexpr DayNumber longestLink = 30; ///< days, as in the chart
constexpr int bandAlpha = 55;
const std::vector<double> dotted{1, 3};
const QColor linkOnPaper(110, 110, 110);

using Steps = std::span<const MeasuredStep>;

bool isEvening(ViewSelection half) { return half == ViewSelection::pmOnly; }

/// Dark enough for names on the pictures' background.
QColor colorOf(TrendMeasure measure, bool evening) {
    switch (measure) {
    case TrendMeasure::sys: return evening ? QColor(0, 100, 100) : QColor(8, 80, 150);
    case TrendMeasure::dia: return evening ? QColor(150, 20, 90) : QColor(140, 65, 0);
    case TrendMeasure::pulse: break;
    }
    return evening ? QColor(95, 70, 120) : QColor(60, 60, 60);
}

bool isNext(const MeasuredStep& from, const MeasuredStep& to) { return to.begin == from.end + 1; }

bool isLinked(const MeasuredStep& from, const MeasuredStep& to) {
    return !isNext(from, to) && to.begin - from.end <= longestLink;
}

std::optional<TrendBand> bandIn(const TrendPoint& point, TrendMeasure measure) {
    if (measure == TrendMeasure::pulse) return point.pulse;
    return measure == TrendMeasure::sys ? point.sys : point.dia;
}

class CurveMaker {
public:
    CurveMaker(TrendMeasure shown, const ChartScale& at, const LocalZone& local, ViewSelection half,
               const TrendAmong& among)
        : measure(shown), scale(at), zone(local), style(trendLook(shown, half, among)),
          linkColor(among.black ? linkOnPaper : style.color),
          halfDay(at.time.width / (local.day(at.time.end) - local.day(at.time.begin) + 1) / 2) {}

    void addRun(TrendCurves& made, Steps run) const {
        made.bands.push_back(band(run));
        if (run.size() > 1) made.lines.push_back({medians(run), lineWidth, style.color, style.dashes});
        for (const MeasuredStep& point : run)
            if (run.size() == 1 || halfStep(point) * 2 >= roomForMarks)
                made.marks.push_back({median(point), markDiameter, true, style.color});
    }

    [[nodiscard]] Curve link(const MeasuredStep& from, const MeasuredStep& to) const {
        return {{median(from), median(to)}, 1, linkColor, dotted};
    }

private:
    [[nodiscard]] double x(const MeasuredStep& point) const {
        return trendX(scale.time, point.begin, point.end, zone);
    }
    [[nodiscard]] double y(double value) const { return trendY(scale, measure, value); }
    [[nodiscard]] Point median(const MeasuredStep& point) const { return {x(point), y(point.band.median)}; }
    [[nodiscard]] double halfStep(const MeasuredStep& point) const {
        return halfDay * (point.end - point.begin + 1);
    }

    [[nodiscard]] std::vector<Point> medians(Steps run) const {
        std::vector<Point> points;
        points.reserve(run.size());
        for (const MeasuredStep& point : run)
            points.push_back(median(point));
        return points;
    }

    /// Along the lower edge and back along the upper one; of one point an upright bar.
    [[nodiscard]] Area band(Steps run) const {
        QColor color = style.color;
        color.setAlpha(bandAlpha);
        Area area{{}, color};
        area.outline.reserve(2 * run.size() + 2);
        const double wider = run.size() == 1 ? std::clamp(halfStep(run.front()) / 2, 1.5, 6.0) : 0;
        const auto add = [&](const MeasuredStep& point, double value, double aside) {
            area.outline.push_back({x(point) + aside, y(value)});
        };
        add(run.front(), run.front().band.low, -wider);
        for (const MeasuredStep& point : run.subspan(run.size() == 1 ? 0 : 1))
            add(point, point.band.low, wider);
        for (std::size_t index = run.size(); index-- > 0;)
            add(run[index], run[index].band.high, wider);
        if (run.size() == 1) add(run.front(), run.front().band.high, -wider);
        return area;
    }

    TrendMeasure measure;
    const ChartScale& scale;
    const LocalZone& zone;
    TrendLook style;
    QColor linkColor;
    double halfDay; ///< in the picture
};

} // namespace

TrendLook trendLook(TrendMeasure measure, ViewSelection half, const TrendAmong& among) {
    TrendLook look{among.black ? QColor(Qt::black) : colorOf(measure, isEvening(half)), {}};
    const bool isDia = measure == TrendMeasure::dia;
    if (among.bothHalves && isEvening(half))
        look.dashes = isDia ? std::vector<double>{8, 3, 2, 3} : std::vector<double>{5, 3};
    else if (isDia)
        look.dashes = {9, 4};
    return look;
}

QString trendName(TrendMeasure measure, ViewSelection half) {
    const auto name = [measure] {
        if (measure == TrendMeasure::sys) return qtTrId("sys");
        return measure == TrendMeasure::dia ? qtTrId("dia") : qtTrId("pulse");
    };
    if (half == ViewSelection::amOnly) return qtTrId("trendMorning").arg(name());
    return isEvening(half) ? qtTrId("trendEvening").arg(name()) : name();
}

std::vector<MeasuredStep> measuredSteps(const TrendSeries& series, TrendMeasure measure) {
    std::vector<MeasuredStep> steps;
    steps.reserve(series.points.size());
    for (const TrendPoint& point : series.points)
        if (const auto band = bandIn(point, measure)) steps.push_back({point.begin, point.end, *band});
    return steps;
}

double trendY(const ChartScale& scale, TrendMeasure measure, double value) {
    const Rect& plot = scale.chartRect;
    const double far = 10 * plot.height; // whatever a damaged file holds: that can still be painted
    const double y = measure == TrendMeasure::pulse ? scale.mapPulseValToY(value) : scale.mapValToY(value);
    return std::clamp(y, plot.y - far, plot.top() + far);
}

TrendSpan trendSpan(const TimeScale& time, DayNumber begin, DayNumber end, const LocalZone& zone) {
    const DayNumber first = zone.day(time.begin);
    const DayNumber last = zone.day(time.end);
    const double perDay = time.width / (last - first + 1);
    return {time.left + perDay * (std::max(begin, first) - first),
            time.left + perDay * (std::min(end, last) - first + 1)};
}

double trendX(const TimeScale& time, DayNumber begin, DayNumber end, const LocalZone& zone) {
    const TrendSpan days = trendSpan(time, begin, end, zone);
    return (days.from + days.to) / 2;
}

TrendCurves trendCurves(const TrendSeries& series, TrendMeasure measure, const ChartScale& scale,
                        const LocalZone& zone, const TrendAmong& among) {
    const CurveMaker maker(measure, scale, zone, series.half, among);
    TrendCurves made;
    const std::vector<MeasuredStep> steps = measuredSteps(series, measure);
    for (std::size_t begin = 0; begin < steps.size();) {
        std::size_t end = begin + 1;
        while (end < steps.size() && isNext(steps[end - 1], steps[end]))
            ++end;
        maker.addRun(made, Steps(steps).subspan(begin, end - begin));
        if (end < steps.size() && isLinked(steps[end - 1], steps[end]))
            made.links.push_back(maker.link(steps[end - 1], steps[end]));
        begin = end;
    }
    return made;
}

bool hasLinks(const TrendSeries& series) {
    return std::ranges::any_of(std::array{TrendMeasure::sys, TrendMeasure::pulse}, [&](TrendMeasure measure) {
        const std::vector<MeasuredStep> steps = measuredSteps(series, measure);
        return std::ranges::adjacent_find(steps, isLinked) != steps.end();
    });
}

OffScale trendOffScale(std::span<const TrendSeries> series, std::span<const TrendMeasure> measures,
                       const ScaleRange& range) {
    std::map<DayNumber, OffScale> steps;
    for (const TrendSeries& one : series)
        for (const TrendMeasure measure : measures)
            for (const auto& [begin, end, band] : measuredSteps(one, measure)) {
                OffScale& step = steps[begin];
                if (band.high > static_cast<double>(range.most)) step.above = 1;
                if (band.low < static_cast<double>(range.least)) step.below = 1;
            }
    OffScale counts;
    for (const auto& [begin, step] : steps) {
        counts.above += step.above;
        counts.below += step.below;
    }
    return counts;
}

} // namespace zel

#include "chart/DrawTrend.h"

#include "chart/CommentBands.h"
#include "chart/DrawChart.h"
#include "chart/Drawing.h"
#include "chart/TimeAxis.h"
#include "chart/TrendCaption.h"
#include "chart/TrendCurves.h"
#include "chart/TrendNames.h"
#include "chart/TrendScale.h"
#include "chart/ValueScale.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace zel {

namespace {

constexpr std::array pressures{TrendMeasure::sys, TrendMeasure::dia};
constexpr std::array beats{TrendMeasure::pulse};
constexpr int emptyFont = 4;
constexpr double aroundCaption = 2;
constexpr double besideNames = 5;
constexpr double plotGap = 7;      ///< between the two plots: half a number
constexpr double pulseShare = 0.3; ///< as on the chart
constexpr double fittedPulseShare = 0.2;
constexpr double trendNoteInset = 4;

/// Where the picture's parts lie.
struct Parts {
    ChartScale blood;
    ChartScale pulse; ///< with the dates below it
    Rect names;
    CommentBands comments;
    TrendCaption caption;
};

double headHeight(const TrendCaption& caption) {
    return trendCaptionLine * static_cast<double>(caption.lines.size()) + aroundCaption;
}

/// Low plots are worse than fewer words.
TrendCaption captionOf(const TrendInput& input) {
    constexpr double leastPlots = 60;
    const double rest = input.totalRect.height - getBaseAreaHeight() - plotGap - leastPlots - aroundCaption;
    const int lines = std::clamp(static_cast<int>(rest / trendCaptionLine), 1, 4);
    return trendCaption(input.trend, input.totalRect.width - scaleWidth - trendNoteInset, lines);
}

/// So many that the plots keep what they need to be read.
int commentRows(double height, double head) {
    constexpr double share = 0.2, leastPlots = 100;
    const double rest = height - head - getBaseAreaHeight() - plotGap - leastPlots - commentBandHeight;
    return std::clamp(static_cast<int>(std::min(height * share, rest) / commentBandHeight), 0, 4);
}

/// Enough for two numbers, but never more than half of what the pressure has.
double pulseHeight(double plots, bool isFitted) {
    constexpr double least = 36, mostOfLow = 1.0 / 3;
    const double share = isFitted ? fittedPulseShare : pulseShare;
    return std::floor(std::max(plots * share, std::min(least, plots * mostOfLow)));
}

TrendAmong amongOf(const TrendInput& input) {
    const auto drawn = std::ranges::count_if(
        input.trend.series, [](const TrendSeries& series) { return !series.points.empty(); });
    return {.bothHalves = drawn > 1, .black = input.forPrint};
}

/// The ends of all lines that there are.
std::vector<LineName> lineEnds(const TrendInput& input, const ChartScale& blood, const ChartScale& pulse) {
    std::vector<LineName> names;
    for (const TrendMeasure measure : {TrendMeasure::sys, TrendMeasure::dia, TrendMeasure::pulse}) {
        const ChartScale& scale = measure == TrendMeasure::pulse ? pulse : blood;
        for (const TrendSeries& series : input.trend.series) {
            const std::vector<MeasuredStep> steps = measuredSteps(series, measure);
            if (steps.empty()) continue;
            const double y = trendY(scale, measure, steps.back().band.median);
            names.push_back({trendName(measure, series.half),
                             std::clamp(y, scale.chartRect.y, scale.chartRect.top()),
                             trendLook(measure, series.half, amongOf(input)).color});
        }
    }
    return names;
}

void fitScales(Parts& parts, const TrendInput& input) {
    const std::array limits{input.sysStandard, input.diaStandard};
    parts.blood.fitted = fittedRange(input.trend.series, pressures, limits, parts.blood.bloodRange());
    parts.pulse.fitted = fittedRange(input.trend.series, beats, {}, parts.pulse.pulseRange());
}

Parts partsOf(const TrendInput& input, const LocalZone& zone) {
    const Rect& all = input.totalRect;
    const ChartScale anywhere(all, input.selection.period, true, startScaleBase);
    const double names = lineNamesSize(lineEnds(input, anywhere, anywhere)).width + 2 * besideNames;
    const double width = all.width - names;
    const TimeScale time = ChartScale({all.x, all.y, width, 0}, input.selection.period, true, 0).time;
    TrendCaption caption = captionOf(input);
    const double head = headHeight(caption);
    CommentBands bands = layOutCommentBands(input.comments, time, all.y, commentRows(all.height, head), zone);
    const double bottom = all.y + bands.height;
    const double plots = all.height - bands.height - head - getBaseAreaHeight() - plotGap;
    const double low = pulseHeight(plots, input.isFitted) + getBaseAreaHeight();
    const double high = all.top() - head - (bottom + low + plotGap);
    Parts parts{{{all.x, bottom + low + plotGap, width, high}, input.selection.period, true, startScaleBase},
                {{all.x, bottom, width, low}, input.selection.period, false, startScaleBase},
                {all.x + width + besideNames, bottom, names - 2 * besideNames, all.top() - bottom},
                std::move(bands),
                std::move(caption)};
    if (input.isFitted) fitScales(parts, input);
    return parts;
}

/// Days in a short period; else months, or years where months would shade the plot.
void drawDateLines(Picture& picture, const ChartScale& scale, const LocalZone& zone) {
    using namespace std::chrono;
    if (isShortPeriod(dayDiff(scale.time, zone))) return drawTimeAxis(picture, scale, AxisGrid(scale, zone));
    constexpr double crowded = 8;
    const DayNumber first = zone.day(scale.time.begin);
    const DayNumber last = zone.day(scale.time.end);
    const double perDay = scale.time.width / (last - first + 1);
    const months step{perDay * 30 >= crowded ? 1 : 12};
    const year_month_day begin{sys_days{days{first}}};
    const year_month start = step == months{1} ? begin.year() / begin.month() : begin.year() / January;
    for (year_month month = start;; month += step) {
        const auto day = static_cast<DayNumber>(sys_days{month / 1}.time_since_epoch().count());
        if (day > last) return;
        const double x = scale.time.left + perDay * (day - first);
        if (day >= first)
            picture.emplace_back(StraightLine{
                {x, scale.chartRect.y}, {x, scale.chartRect.top()}, 1, fixColor(gcGrayLinecolor)});
    }
}

/// The pale line of a limit is lost in black and white. On paper it is fine, and without the dashes that a
/// line of medians may have.
void drawTrendLimit(Picture& picture, const ChartScale& scale, std::uint32_t limit, bool black) {
    if (!black) return DrawAlphaLine(picture, scale, limit);
    if (limit == 0) return;
    const double y = scale.mapValToY(limit);
    picture.emplace_back(Curve{{{scale.chartRect.x, y}, {scale.chartRect.right(), y}}, 0.6, Qt::black, {}});
}

template <class Item>
void addAll(Picture& picture, std::vector<Item>& items) {
    for (Item& item : items)
        picture.emplace_back(std::move(item));
}

/// All bands lie below all lines.
void drawSeries(Picture& picture, const TrendInput& input, const ChartScale& scale,
                std::span<const TrendMeasure> measures, bool hasLinks, const LocalZone& zone) {
    std::vector<TrendCurves> curves;
    for (const TrendMeasure measure : measures)
        for (const TrendSeries& series : input.trend.series)
            curves.push_back(trendCurves(series, measure, scale, zone, amongOf(input)));
    for (TrendCurves& one : curves)
        addAll(picture, one.bands);
    for (TrendCurves& one : curves) {
        if (hasLinks) addAll(picture, one.links);
        addAll(picture, one.lines);
        addAll(picture, one.marks);
    }
}

void drawPlotFrame(Picture& picture, const Rect& rect) {
    picture.emplace_back(Curve{{{rect.x, rect.y},
                                {rect.right(), rect.y},
                                {rect.right(), rect.top()},
                                {rect.x, rect.top()},
                                {rect.x, rect.y}},
                               0.5,
                               Qt::black,
                               {}});
}

void drawPlot(Picture& picture, const TrendInput& input, const ChartScale& scale,
              std::span<const TrendMeasure> measures, bool hasLinks, const LocalZone& zone) {
    const bool isPulse = measures.front() == TrendMeasure::pulse;
    picture.emplace_back(FillRect{scale.whiteRect, Qt::white});
    const ScaleRange range = isPulse ? scale.pulseRange() : scale.bloodRange();
    drawTrendScale(picture, scale, range);
    picture.emplace_back(BeginClip{scale.chartRect});
    drawDateLines(picture, scale, zone);
    if (!isPulse) {
        drawTrendLimit(picture, scale, input.sysStandard, input.forPrint);
        drawTrendLimit(picture, scale, input.diaStandard, input.forPrint);
    }
    drawSeries(picture, input, scale, measures, hasLinks, zone);
    picture.emplace_back(EndClip{});
    if (input.forPrint) drawPlotFrame(picture, scale.whiteRect);
    const Rect room{scale.chartRect.x, scale.chartRect.y, scale.chartRect.width - trendNoteInset,
                    scale.chartRect.height - 1};
    drawOffScale(picture, trendOffScale(input.trend.series, measures, range), room, OffScaleOf::points);
}

/// The lowest line stands where a single one does.
void drawCaption(Picture& picture, const TrendCaption& caption, const Rect& plot) {
    double y = plot.top() + headHeight(caption) - (trendCaptionLine + aroundCaption) / 2;
    for (const QString& line : caption.lines) {
        textOut(picture, line, {plot.x + trendNoteInset, y}, trendCaptionFont(), XPos::left, YPos::centre);
        y -= trendCaptionLine;
    }
}

/// Above the numbers of the pressure, and beside the lower strip of the dates.
void drawUnits(Picture& picture, const Parts& parts) {
    drawTrendUnit(picture, parts.blood, qtTrId("mmHg"),
                  parts.blood.chartRect.top() + (trendCaptionLine + aroundCaption) / 2);
    drawTrendUnit(picture, parts.pulse, qtTrId("P/min"), parts.pulse.totalRect.y + commentHeight / 2.0);
}

void drawEmpty(Picture& picture, const TrendInput& input, const Rect& plot) {
    const auto hasPoints = [](const TrendSeries& series) { return !series.points.empty(); };
    if (std::ranges::any_of(input.trend.series, hasPoints)) return;
    textOut(picture, noReadingsText(input.selection.view),
            {plot.x + plot.width / 2, plot.y + plot.height / 2}, attribute(emptyFont), XPos::centre,
            YPos::centre);
}

std::vector<TrendColumn> columnsOf(const TrendInput& input, const Parts& parts, const LocalZone& zone) {
    std::map<DayNumber, TrendColumn> columns;
    for (const TrendMeasure measure : {TrendMeasure::sys, TrendMeasure::dia, TrendMeasure::pulse}) {
        const ChartScale& scale = measure == TrendMeasure::pulse ? parts.pulse : parts.blood;
        for (const TrendSeries& series : input.trend.series)
            for (const auto& [begin, end, band] : measuredSteps(series, measure)) {
                TrendColumn& column = columns[begin];
                column.begin = begin;
                column.end = end;
                column.x = trendX(scale.time, begin, end, zone);
                const Point median{column.x, trendY(scale, measure, band.median)};
                if (scale.chartRect.contains(median)) column.medians.push_back(median);
            }
    }
    std::vector<TrendColumn> inOrder;
    inOrder.reserve(columns.size());
    for (auto& [begin, column] : columns)
        inOrder.push_back(std::move(column));
    return inOrder;
}

bool hasRoom(const Parts& parts) {
    constexpr double least = 20;
    return parts.blood.chartRect.height >= least && parts.pulse.chartRect.height > 0
           && parts.blood.chartRect.width >= least;
}

} // namespace

QString trendStepText(TrendStep step) {
    switch (step) {
    case TrendStep::week: return qtTrId("trendWeek");
    case TrendStep::month: return qtTrId("trendMonth");
    case TrendStep::day: break;
    }
    return qtTrId("trendDay");
}

std::pair<std::uint32_t, std::uint32_t> trendLimits(std::uint32_t sys, std::uint32_t dia) {
    const ScaleRange range = ChartScale({}, {}, true, startScaleBase).bloodRange();
    const auto shown = [&](std::uint32_t limit) {
        return limit < range.least || limit > range.most ? 0 : limit;
    };
    return {shown(sys), shown(dia)};
}

TrendLayout drawTrend(const TrendInput& input, const LocalZone& zone) {
    const Rect& all = input.totalRect;
    TrendLayout layout{
        {FillRect{all, input.forPrint ? QColor(Qt::white) : fixColor(gcScaleBackgroundColor)}}, {}, {}};
    const Parts parts = partsOf(input, zone);
    if (!hasRoom(parts)) return layout;
    Picture& picture = layout.picture;
    const bool hasLinks = parts.caption.explainsLinks;
    drawPlot(picture, input, parts.blood, pressures, hasLinks, zone);
    drawPlot(picture, input, parts.pulse, beats, hasLinks, zone);
    drawUnits(picture, parts);
    drawDateLabels(picture, parts.pulse, trendNoteInset, AxisGrid(parts.pulse, zone));
    const Rect& plot = parts.blood.chartRect;
    drawCaption(picture, parts.caption, plot);
    for (TextLine& name : placeLineNames(lineEnds(input, parts.blood, parts.pulse), parts.names))
        picture.emplace_back(std::move(name));
    drawEmpty(picture, input, plot);
    drawCommentBands(picture, parts.comments, parts.blood.time, all.y, input.forPrint);
    layout.plot = {plot.x, parts.pulse.chartRect.y, plot.width, plot.top() - parts.pulse.chartRect.y};
    layout.columns = columnsOf(input, parts, zone);
    return layout;
}

} // namespace zel

#include "chart/DrawChart.h"

#include "chart/Drawing.h"
#include "chart/Log.h"
#include "chart/TimeAxis.h"
#include "chart/ValueScale.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int captionAttribute = 1;
constexpr int noDataAttribute = 4;
constexpr int plotCornerRadius = 5;
constexpr double besideFrame = 4; ///< a printed chart's frame runs just inside the plot
constexpr double noteGap = 4;     ///< between a note and the plot's edges

/// White, with rounded corners on the screen. Only what lies beside a corner is painted twice, the second
/// time through the round clip, which takes a hundred times as long.
void drawBackground(Picture& picture, const ChartScale& scale, bool forPrint) {
    const Rect& total = scale.totalRect;
    const Rect& white = scale.whiteRect;
    if (forPrint) {
        picture.push_back(FillRect{total, Qt::white});
        return;
    }
    const double corner = std::min<double>(plotCornerRadius, std::max(0.0, white.height) / 2);
    const QColor beside = fixColor(gcScaleBackgroundColor);
    picture.push_back(FillRect{{total.x, total.y, total.width, corner}, beside});
    picture.push_back(FillRect{{total.x, total.top() - corner, total.width, corner}, beside});
    picture.push_back(
        FillRect{{total.x, total.y, std::min(scaleWidth + 0.0, total.width), total.height}, beside});
    picture.push_back(
        FillRect{{white.x, white.y + corner, white.width, white.height - 2 * corner}, Qt::white});
    picture.push_back(BeginClip{white, plotCornerRadius});
    picture.push_back(FillRect{{white.x, white.y, white.width, corner}, Qt::white});
    picture.push_back(FillRect{{white.x, white.top() - corner, white.width, corner}, Qt::white});
    picture.push_back(EndClip{});
}

void drawDownloadDays(Picture& picture, const ChartScale& scale, const std::vector<Period>& days,
                      bool forPrint) {
    std::vector<FillRect> besideCorner;
    picture.push_back(BeginClip{scale.chartRect});
    for (const Period& day : days) {
        if (day.end < scale.time.begin || day.begin > scale.time.end) continue;
        const double x = scale.time.calcXPos(day.begin);
        const FillRect fill{{x, scale.chartRect.y, scale.time.calcXPos(day.end) - x, scale.chartRect.height},
                            fixColor(gcYellowBackgroundcolor)};
        const Rect between = scale.whiteRect.inset(plotCornerRadius);
        const bool free = forPrint || (between.x <= x && fill.rect.right() <= between.right());
        if (free)
            picture.push_back(fill);
        else
            besideCorner.push_back(fill);
    }
    if (!besideCorner.empty()) {
        picture.push_back(BeginClip{scale.whiteRect, plotCornerRadius});
        picture.insert(picture.end(), besideCorner.begin(), besideCorner.end());
        picture.push_back(EndClip{});
    }
    picture.push_back(EndClip{});
}

void drawInTheMiddle(Picture& picture, const QString& text, const Rect& rect) {
    textOut(picture, text, {rect.x + rect.width / 2, rect.y + rect.height / 2}, attribute(noDataAttribute),
            XPos::centre, YPos::centre);
}

void showDataTypeInfo(Picture& picture, const ChartScale& scale, const ChartStyle& style) {
    if (!style.CompareType) return;
    const QString text = style.showDataType == ViewSelection::amOnly ? qtTrId("morning") : qtTrId("evening");
    textOut(picture, text, {scale.chartRect.x + 6, scale.totalRect.top() - 2}, attribute(captionAttribute),
            XPos::left, YPos::top);
}

void drawLines(Picture& picture, std::vector<PolyLine>& lines) {
    for (PolyLine& line : lines)
        picture.emplace_back(std::move(line));
}

void addMarks(Picture& picture, PointMarks& marks, bool wanted, bool bordered) {
    if (!wanted) return;
    marks.bordered = bordered;
    picture.emplace_back(std::move(marks));
}

/// Over the lines; what they are is said at the bottom left, on paper in the legend.
void drawHollow(Picture& picture, const ChartScale& scale, const ChartStyle& style, ReadingLines& made) {
    std::ranges::move(made.hollow, std::back_inserter(picture));
    if (made.excluded == 0 || style.forPrint) return;
    const QString text = qtTrId("chartExcluded", made.excluded);
    const Point at{scale.chartRect.x + noteGap, scale.chartRect.y + noteGap};
    const Size size = textSize(text, attribute(captionAttribute));
    picture.emplace_back(FillRect{{at.x, at.y, size.width, size.height}, QColor(255, 255, 255, 200)});
    picture.emplace_back(TextLine{text, at, attribute(captionAttribute)});
}

/// What the plot does not show: readings, or some of them. On paper, the marks of downloads hang at its top.
void drawNotes(Picture& picture, const ChartScale& scale, const ChartStyle& style, const ReadingLines& made) {
    const Rect& plot = scale.chartRect;
    if (made.inPeriod == 0 && made.excluded == 0)
        drawInTheMiddle(picture, noReadingsText(style.showDataType), plot);
    const double side = style.CompareType ? plot.width / 2 : noteGap; // the caption stands at the left
    const double top = style.forPrint ? downloadMarkHeight : noteGap;
    drawOffScale(picture, made.offScale,
                 {plot.x + side, plot.y, plot.width - side - noteGap, plot.height - top});
}

void drawBloodChart(Picture& picture, const ChartScale& scale, const ChartInput& input) {
    ReadingLines made = bloodLines(input.data.maReading, scale, input.style.showDataType);
    qCDebug(lcChart, "drawBloodChart data count %zu", made.count);
    addMarks(picture, made.marks, input.style.bTrack && !input.style.forPrint, true);
    DrawAlphaLine(picture, scale, input.sysStandard);
    DrawAlphaLine(picture, scale, input.diaStandard);
    picture.emplace_back(std::move(made.ticks));
    addMarks(picture, made.marks, input.style.forPrint, false); // over the limits and the ticks
    drawLines(picture, made.lines);
    drawHollow(picture, scale, input.style, made);
    drawNotes(picture, scale, input.style, made);
}

void drawPulseChart(Picture& picture, const ChartScale& scale, const ChartInput& input) {
    ReadingLines made = pulseLines(input.data.maReading, scale, input.style.showDataType);
    qCDebug(lcChart, "drawPulseChart data count %zu", made.count);
    if (input.style.bTrack) picture.emplace_back(made.marks);
    made.marks.bordered = false;
    picture.emplace_back(std::move(made.marks));
    drawLines(picture, made.lines);
    drawHollow(picture, scale, input.style, made);
    drawNotes(picture, scale, input.style, made);
}

void logPeriod(const ChartLayout& layout) {
    qCDebug(lcChart, "bShowComment : %s", layout.bShowComment ? "yes" : "no");
    qCDebug(lcChart, "begin:%s end:%s", qUtf8Printable(DateToStr(layout.scale.time.begin, u"yyyyMMdd"_s)),
            qUtf8Printable(DateToStr(layout.scale.time.end, u"yyyyMMdd"_s)));
}

ChartScale scaleOf(const ChartInput& input) {
    return {input.totalRect, input.period, input.style.noBaseArea, input.style.iScaleBase};
}

} // namespace

QString noReadingsText(ViewSelection view) {
    switch (view) {
    case ViewSelection::amOnly: return qtTrId("noMorningReadings");
    case ViewSelection::pmOnly: return qtTrId("noEveningReadings");
    default: return qtTrId("noReadingsInPeriod");
    }
}

ChartLayout drawChart(const ChartInput& input, const LocalZone& zone) {
    const ChartStyle& style = input.style;
    ChartLayout layout{{}, scaleOf(input), false};
    layout.bShowComment = isShortPeriod(dayDiff(layout.scale.time, zone));
    Picture& picture = layout.picture;
    const ChartScale& scale = layout.scale;
    drawBackground(picture, scale, style.forPrint);
    if (input.data.hasData()) drawDownloadDays(picture, scale, input.data.downloadDays, style.forPrint);
    if (style.showBlood)
        drawBloodScale(picture, scale);
    else
        drawPulseScale(picture, scale);
    if (!input.data.hasData()) {
        drawInTheMiddle(picture, qtTrId("NoData"), scale.totalRect);
        return layout;
    }
    logPeriod(layout);
    const AxisGrid grid(scale, zone);
    drawTimeAxis(picture, scale, grid);
    if (!style.noBaseArea) drawDateLabels(picture, scale, style.forPrint ? besideFrame : 0, grid);
    picture.push_back(BeginClip{scale.chartRect});
    if (style.showBlood)
        drawBloodChart(picture, scale, input);
    else
        drawPulseChart(picture, scale, input);
    showDataTypeInfo(picture, scale, style);
    picture.push_back(EndClip{});
    return layout;
}

std::vector<ChartPoint> chartPoints(const ChartInput& input) {
    const auto points = input.style.showBlood ? bloodPoints : pulsePoints;
    return points(input.data.maReading, scaleOf(input), input.style.showDataType);
}

Period addDay(const Period& period, int days) {
    // From the middle of the day, which an hour more or less where the clocks change cannot leave.
    const std::chrono::hours half{12};
    const std::chrono::days moved{days};
    return {DateToDayBoundary(period.begin + half - moved, true),
            DateToDayBoundary(period.end - half + moved, false)};
}

} // namespace zel

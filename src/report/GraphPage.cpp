#include "report/GraphPage.h"

#include "chart/CommentBoxes.h"
#include "report/CommentNumbers.h"
#include "report/FieldText.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

const TextAttribute noteFont{.size = 8};
const TextAttribute boldNoteFont{.size = 8, .bold = true};
constexpr int legendLines = 2;
constexpr double besideNumbers = 1.5; ///< the numbers of the scale end where the plot begins
constexpr double pulseShare = 0.3;    ///< of the height; half for a second blood-pressure chart
constexpr double crowdedGrid = 4;     ///< days that stand nearer than this would shade the plot

/// The comments' boxes, with their numbers above them: the days' own numbers stand inside.
/// \return whether there are any
bool drawComments(Picture& picture, const ReportSource& report, const ChartScale& scale) {
    DrawManager manager;
    std::vector<NumberedBox> numbered;
    for (CommentBox box : commentBoxes(report.comments, report.selection.period, scale.time)) {
        box.isSelected = false;
        const CommentShape shape = createCommentInRect(manager, box, scale.totalRect.y);
        const auto comment =
            std::ranges::find(report.comments, box.CommentID, [](const auto& one) { return one->CommentID; });
        const auto index = static_cast<int>(comment - report.comments.begin());
        numbered.push_back({shape->bounds().x, index + 1});
    }
    const Point at{scale.chartRect.x, scale.chartRect.y + 1};
    for (const CommentNumber& number : commentNumbers(numbered, at, scale.chartRect.width, boldNoteFont))
        picture.emplace_back(TextLine{number.text, number.origin, boldNoteFont});
    manager.drawComments(picture, scale.totalRect);
    return !numbered.empty();
}

void drawDashes(Picture& picture, const Rect& plot, double y) {
    constexpr double dash = 5, period = 9;
    const int count = static_cast<int>((plot.width - dash) / period);
    for (int i = 0; i <= count; ++i) {
        const double x = plot.x + i * period;
        picture.emplace_back(StraightLine{{x, y}, {x + dash, y}, 0.75, Qt::black});
    }
}

/// The limits' own lines are pale, and lost in black and white. \return those that lie in the plot
Limits drawLimitDashes(Picture& picture, const Limits& limits, const ChartScale& scale) {
    const auto drawn = [&](std::uint32_t limit) -> std::uint32_t {
        const ScaleRange range = scale.bloodRange();
        if (limit == 0 || limit < range.least || limit > range.most) return 0;
        drawDashes(picture, scale.chartRect, scale.mapValToY(limit));
        return limit;
    };
    return {drawn(limits.sys), drawn(limits.dia)};
}

/// A year's days as hairlines, so that the readings stand out on paper.
void thinCrowdedGrid(Picture& picture) {
    double before = -crowdedGrid;
    for (PictureItem& item : picture) {
        auto* line = std::get_if<StraightLine>(&item);
        if (!line || line->from.x != line->to.x) continue;
        if (line->from.x - before < crowdedGrid) line->width = 0.2;
        before = line->from.x;
    }
}

/// The pale colour of a download day does not show in black and white. \return whether one is marked
bool drawDownloadMarks(Picture& picture, const ChartData& data, const ChartScale& scale) {
    const QString arrow = u"\u2193"_s;
    const double half = textSize(arrow, noteFont).width / 2 + besideNumbers; // clear of the frame
    const Rect& plot = scale.chartRect;
    bool isMarked = false;
    for (const Period& day : data.downloadDays) {
        const double x = (scale.time.calcXPos(day.begin) + scale.time.calcXPos(day.end)) / 2;
        if (x < plot.x || x > plot.right()) continue;
        const double seen = std::clamp(x, plot.x + half, std::max(plot.x + half, plot.right() - half));
        textOut(picture, arrow, {seen, plot.top()}, noteFont, XPos::centre, YPos::top);
        isMarked = true;
    }
    return isMarked;
}

ChartMarks drawMarks(Picture& picture, const ReportSource& report, const ChartData& data,
                     const ChartStyle& style, const ChartLayout& layout) {
    ChartMarks marks;
    if (style.showBlood) marks.limits = drawLimitDashes(picture, limitsOf(report), layout.scale);
    marks.readings = data.hasData();
    if (!marks.readings) return marks;
    marks.excluded = std::ranges::any_of(data.maReading, [&](const ChartReading& reading) {
        return reading.isExcluded && report.selection.period.contains(reading.date)
               && MatchedDataType(style.showDataType, reading.isPMData);
    });
    if (layout.bShowComment && !style.noBaseArea)
        marks.comments = drawComments(picture, report, layout.scale);
    if (style.showBlood) marks.downloads = drawDownloadMarks(picture, data, layout.scale);
    return marks;
}

ChartMarks drawChartIn(Picture& picture, const ReportSource& report, const ChartData& data, ChartStyle style,
                       const Rect& rect) {
    style.forPrint = true;
    style.bTrack = false;
    style.showDataType = report.selection.view;
    ChartLayout layout = drawChart({data, report.selection.period, report.settings.sysStandard,
                                    report.settings.diaStandard, style, rect},
                                   LocalZone());
    thinCrowdedGrid(layout.picture);
    append(picture, std::move(layout.picture));
    const ChartMarks marks = drawMarks(picture, report, data, style, layout);
    const Rect& plot = layout.scale.whiteRect;
    drawBlackFrames(picture, {plot.x + besideNumbers, plot.y, plot.width - besideNumbers, plot.height});
    return marks;
}

QString limitsNote(const Limits& limits, const Limits& shown) {
    if (limits.count() == 0) return qtTrId("reportNoLimits");
    const Limits hidden{shown.sys > 0 ? 0 : limits.sys, shown.dia > 0 ? 0 : limits.dia};
    QStringList note;
    if (shown.count() > 0) note += qtTrId("reportGraphLimits", shown.count()).arg(limitsText(shown));
    if (hidden.count() > 0) note += qtTrId("reportGraphHiddenLimits", hidden.count()).arg(limitsText(hidden));
    return note.join(u' ');
}

/// What the chart shows, and no more.
QString graphNote(const ReportSource& report, const ChartMarks& marks) {
    QStringList note;
    if (marks.readings) note += qtTrId("reportGraphNote");
    note += limitsNote(limitsOf(report), marks.limits);
    if (marks.downloads) note += qtTrId("reportGraphDownloads");
    if (marks.excluded) note += qtTrId("reportGraphExcluded");
    if (marks.comments) note += qtTrId("reportGraphComments");
    return note.join(u' ');
}

} // namespace

void append(Picture& picture, Picture part) { std::ranges::move(part, std::back_inserter(picture)); }

void drawBlackFrames(Picture& picture, const Rect& rect) {
    const std::array<Point, 4> corners{
        {{rect.x, rect.y}, {rect.right(), rect.y}, {rect.right(), rect.top()}, {rect.x, rect.top()}}};
    for (std::size_t corner = 0; corner < corners.size(); ++corner)
        picture.emplace_back(
            StraightLine{corners[corner], corners[(corner + 1) % corners.size()], 0.5, Qt::black});
}

Limits limitsOf(const ReportSource& report) {
    return {report.settings.sysStandard, report.settings.diaStandard};
}

QString limitsText(const Limits& limits) {
    if (limits.count() == 2) return qtTrId("reportLimits").arg(limits.sys).arg(limits.dia);
    if (limits.sys > 0) return qtTrId("reportLimitSys").arg(limits.sys);
    return limits.dia > 0 ? qtTrId("reportLimitDia").arg(limits.dia) : QString();
}

ChartMarks drawGraph(Picture& picture, const ReportSource& report, const Rect& rect) {
    const ChartData data = makeChartData(report.readings, report.downloads);
    const double lower = rect.height * (report.lowerChart.showBlood ? 0.5 : pulseShare);
    const ChartMarks below =
        drawChartIn(picture, report, data, report.lowerChart, {rect.x, rect.y, rect.width, lower});
    ChartMarks marks = drawChartIn(picture, report, data, report.bloodChart,
                                   {rect.x, rect.y + lower, rect.width, rect.height - lower});
    marks.comments = marks.comments || below.comments;
    return marks;
}

void drawBloodGraph(Picture& picture, const ReportSource& report, const Rect& rect) {
    constexpr double gap = 8; // above and below the legend
    const double legend = legendLines * lineHeight(noteFont) + 4;
    const ChartData data = makeChartData(report.readings, report.downloads);
    ChartStyle style = report.bloodChart;
    style.noBaseArea = false;
    const double bottom = rect.y + gap + legend;
    const ChartMarks marks =
        drawChartIn(picture, report, data, style, {rect.x, bottom, rect.width, rect.height - gap - legend});
    drawGraphLegend(picture, report, marks, {rect.x, rect.y + gap}, rect.width);
}

void drawGraphLegend(Picture& picture, const ReportSource& report, const ChartMarks& marks, Point at,
                     double width) {
    const double top = at.y + legendLines * lineHeight(noteFont);
    fieldParagraph(picture, graphNote(report, marks), {at.x, top}, width, noteFont, legendLines);
}

} // namespace zel

#include "report/GraphPage.h"

#include "chart/CommentBoxes.h"
#include "chart/TimeAxis.h"
#include "report/CommentLook.h"
#include "report/FieldText.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

const TextAttribute noteFont{.size = 8};
const TextAttribute boldNoteFont{.size = 8, .bold = true};
constexpr double besideNumbers = 1.5; ///< the numbers of the scale end where the plot begins
constexpr double pulseShare = 0.3;    ///< of the height; half for a second blood-pressure chart
constexpr double crowdedGrid = 4;     ///< days that stand nearer than this would shade the plot

/// The comments' boxes, each with its number above it: the days' own numbers stand inside.
void drawComments(Picture& picture, const ReportSource& report, const ChartScale& scale) {
    DrawManager manager;
    const auto boxes = commentBoxes(report.comments, report.selection.period, scale.time);
    for (CommentBox box : boxes) {
        box.isSelected = false;
        const CommentShape shape = createCommentInRect(manager, box, scale.totalRect.y);
        const auto comment =
            std::ranges::find(report.comments, box.CommentID, [](const auto& one) { return one->CommentID; });
        if (comment == report.comments.end()) continue;
        textOut(picture, commentNumber(report.comments, **comment),
                {std::max(shape->bounds().x, scale.chartRect.x) + 3, scale.chartRect.y + 1}, boldNoteFont);
    }
    manager.drawComments(picture, scale.totalRect);
}

/// The limits' own lines are pale, and lost in black and white.
void drawLimitDashes(Picture& picture, const ReportSource& report, const ChartScale& scale) {
    constexpr double dash = 5, period = 9;
    const Rect& plot = scale.chartRect;
    for (const auto limit : {report.settings.sysStandard, report.settings.diaStandard}) {
        const double y = scale.mapValToY(limit);
        if (y < plot.y || y > plot.top()) continue;
        const int count = static_cast<int>((plot.width - dash) / period);
        for (int i = 0; i <= count; ++i) {
            const double x = plot.x + i * period;
            picture.emplace_back(StraightLine{{x, y}, {x + dash, y}, 0.75, Qt::black});
        }
    }
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

/// The pale colour of a download day does not show in black and white.
void drawDownloadMarks(Picture& picture, const ChartData& data, const ChartScale& scale) {
    for (const Period& day : data.downloadDays) {
        const double x = (scale.time.calcXPos(day.begin) + scale.time.calcXPos(day.end)) / 2;
        if (x < scale.chartRect.x || x > scale.chartRect.right()) continue;
        textOut(picture, u"\u2193"_s, {x, scale.chartRect.top()}, noteFont, XPos::centre, YPos::top);
    }
}

void drawChartIn(Picture& picture, const ReportSource& report, const ChartData& data, ChartStyle style,
                 const Rect& rect) {
    style.forPrint = true;
    style.bTrack = false;
    style.showDataType = report.selection.view;
    ChartLayout layout = drawChart({data, report.selection.period, report.settings.sysStandard,
                                    report.settings.diaStandard, style, rect},
                                   LocalZone());
    thinCrowdedGrid(layout.picture);
    append(picture, std::move(layout.picture));
    if (style.showBlood) drawLimitDashes(picture, report, layout.scale);
    if (data.hasData() && layout.bShowComment && !style.noBaseArea)
        drawComments(picture, report, layout.scale);
    if (data.hasData() && style.showBlood) drawDownloadMarks(picture, data, layout.scale);
    const Rect& plot = layout.scale.whiteRect;
    drawBlackFrames(picture, {plot.x + besideNumbers, plot.y, plot.width - besideNumbers, plot.height});
}

/// The values that a chart has room for.
struct Range {
    std::int64_t least, most;

    explicit Range(const ChartStyle& style) {
        least = style.iScaleBase - 20;
        most = style.iScaleBase + (style.showBlood ? 160 : 60);
    }
    [[nodiscard]] bool holds(std::uint32_t value) const { return least <= value && value <= most; }
    [[nodiscard]] QString text() const { return QString::number(least) + u'\u2013' + QString::number(most); }
};

int countOutside(const ReportSource& report, const Range& blood, const Range& lower) {
    const bool isPulse = !report.lowerChart.showBlood;
    return static_cast<int>(std::ranges::count_if(report.readings, [&](const ReadingModel& reading) {
        return isCounted(reading, report.selection) && !reading.isUndated()
               && !(blood.holds(reading.sys) && blood.holds(reading.dia)
                    && (!isPulse || lower.holds(reading.pulse)));
    }));
}

/// What the chart shows, and no more.
QString graphNote(const ReportSource& report) {
    const Period& shown = report.selection.period;
    const LocalZone zone;
    QStringList note(qtTrId("reportGraphNote").arg(limitsText(report)));
    const bool hasDownload = std::ranges::any_of(report.downloads, [&](const auto& download) {
        return shown.begin <= download.transferDate && download.transferDate <= shown.end;
    });
    if (hasDownload) note += qtTrId("reportGraphDownloads");
    const bool hasBoxes =
        !report.comments.empty() && isShortPeriod(zone.day(shown.end) - zone.day(shown.begin));
    if (hasBoxes) note += qtTrId("reportGraphComments");
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

QString limitsText(const ReportSource& report) {
    return qtTrId("reportLimits").arg(report.settings.sysStandard).arg(report.settings.diaStandard);
}

void drawGraph(Picture& picture, const ReportSource& report, const Rect& rect) {
    const ChartData data = makeChartData(report.readings, report.downloads);
    const double lower = rect.height * (report.lowerChart.showBlood ? 0.5 : pulseShare);
    drawChartIn(picture, report, data, report.lowerChart, {rect.x, rect.y, rect.width, lower});
    drawChartIn(picture, report, data, report.bloodChart,
                {rect.x, rect.y + lower, rect.width, rect.height - lower});
}

void drawTrend(Picture& picture, const ReportSource& report, const Rect& rect) {
    constexpr double gap = 10;
    const ChartData data = makeChartData(report.readings, report.downloads);
    ChartStyle style = report.bloodChart;
    style.noBaseArea = false;
    drawChartIn(picture, report, data, style, {rect.x, rect.y + gap, rect.width, rect.height - gap});
}

void drawGraphLegend(Picture& picture, const ReportSource& report, Point at, double width) {
    const double height = lineHeight(noteFont);
    fieldText(picture, graphNote(report), {at.x, at.y + height}, width, noteFont);
    const Range blood(report.bloodChart);
    const Range lower(report.lowerChart);
    const int outside = countOutside(report, blood, lower);
    if (outside == 0) return;
    fieldText(picture, qtTrId("reportOutsideScale", outside).arg(blood.text(), lower.text()), at, width,
              boldNoteFont);
}

} // namespace zel

#include "report/TrendPage.h"

#include "chart/DrawTrend.h"
#include "report/FieldText.h"

namespace zel {

namespace {

const TextAttribute trendFont{.size = 8};
constexpr int linesOfLegend = 2;

QString trendLimitsNote(const Limits& limits) {
    if (limits.count() == 0) return qtTrId("reportNoLimits");
    const auto [shown, hidden] = trendLimitsOf(limits);
    QStringList note;
    if (shown.count() > 0) note += qtTrId("reportTrendLimits", shown.count()).arg(limitsText(shown));
    if (hidden.count() > 0) note += qtTrId("reportGraphHiddenLimits", hidden.count()).arg(limitsText(hidden));
    return note.join(u' ');
}

} // namespace

TrendLimits trendLimitsOf(const Limits& limits) {
    const auto [sys, dia] = trendLimits(limits.sys, limits.dia);
    return {{sys, dia}, {sys > 0 ? 0 : limits.sys, dia > 0 ? 0 : limits.dia}};
}

void drawTrendPage(Picture& picture, const ReportSource& report, const Rect& rect) {
    const Limits limits = limitsOf(report);
    const TrendSeriesList trend = calcTrendSeries(report.readings, report.selection, report.trendApart);
    append(picture, drawTrend({.trend = trend,
                               .comments = report.comments,
                               .selection = report.selection,
                               .sysStandard = limits.sys,
                               .diaStandard = limits.dia,
                               .forPrint = true,
                               .totalRect = rect},
                              LocalZone())
                        .picture);
}

void drawTrendLegend(Picture& picture, const ReportSource& report, Point at, double width) {
    const QString note = qtTrId("reportTrendNote") + u' ' + trendLimitsNote(limitsOf(report));
    const double top = at.y + linesOfLegend * lineHeight(trendFont);
    fieldParagraph(picture, note, {at.x, top}, width, trendFont, linesOfLegend);
}

} // namespace zel

#include "report/FigurePages.h"

#include "chart/DrawCorrelation.h"
#include "chart/DrawHistogram.h"
#include "chart/DrawStatistic.h"
#include "report/FieldText.h"
#include "report/GraphPage.h"
#include "report/LimitShares.h"

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

const TextAttribute lineFont{};
const TextAttribute headingFont{.size = 12, .bold = true};
constexpr double noteGap = 4;

/// A heading and lines under it, from the top of the rectangle. \return what is left of it below
Rect drawWords(Picture& picture, const Rect& rect, const QString& heading, const QStringList& lines) {
    double y = rect.top() - lineHeight(headingFont);
    fieldText(picture, heading, {rect.x, y}, rect.width, headingFont);
    for (const QString& line : lines) {
        y -= lineHeight(lineFont) + 1;
        fieldFigure(picture, line, {rect.x, y}, rect.width, lineFont);
    }
    return {rect.x, rect.y, rect.width, std::max(0.0, y - noteGap - rect.y)};
}

QString keepBothText(const LimitShares& shares, const ReportSource& report) {
    const Limits limits = limitsOf(report);
    if (limits.count() == 0) return qtTrId("reportNoLimits");
    return qtTrId("reportKeepLimits", limits.count())
        .arg(limitsText(limits), shareText(shares.keepBoth, shares.total));
}

/// For each limit that there is.
QStringList tooHighTexts(const LimitShares& shares, const Limits& limits) {
    QStringList texts;
    if (limits.sys > 0) texts += qtTrId("reportSysAbove").arg(shareText(shares.sysTooHigh, shares.total));
    if (limits.dia > 0) texts += qtTrId("reportDiaAbove").arg(shareText(shares.diaTooHigh, shares.total));
    if (limits.count() == 2)
        texts += qtTrId("reportBothAbove").arg(shareText(shares.bothTooHigh, shares.total));
    return texts;
}

QString correlationNote(const Limits& limits) {
    QString note = qtTrId("reportCorrelationNote");
    if (limits.count() > 0) note += u' ' + qtTrId("reportCorrelationLimits", limits.count());
    return note;
}

bool isHalfOfDay(ViewSelection view) {
    return view == ViewSelection::amOnly || view == ViewSelection::pmOnly;
}

LimitShares sharesOf(const ReportSource& report, CountRule rule) {
    return limitShares(report.readings, report.selection, rule, report.settings);
}

} // namespace

void drawHistogramPage(Picture& picture, const ReportSource& report, const Rect& rect) {
    const HistogramFigures figures = calcHistogram(report.readings, report.selection);
    const QString heading = qtTrId("reportReadings", static_cast<int>(figures.total));
    const Rect left = drawWords(picture, rect, heading, {qtTrId("reportHistogramNote")});
    picture.emplace_back(BeginClip{left});
    append(picture, drawHistogram(figures, histogramOffScale(report.readings, report.selection), left));
    picture.emplace_back(EndClip{});
    drawBlackFrames(picture, left);
}

void drawCorrelationPage(Picture& picture, const ReportSource& report, const Rect& rect) {
    const LimitShares shares = sharesOf(report, isCounted);
    const Limits limits = limitsOf(report);
    const Rect left = drawWords(picture, rect, qtTrId("reportReadings", shares.total),
                                {keepBothText(shares, report), tooHighTexts(shares, limits).join(u"     "_s),
                                 correlationNote(limits)});
    picture.emplace_back(BeginClip{left});
    append(picture, drawCorrelation(calcCorrelation(report.readings, report.selection),
                                    correlationOffScale(report.readings, report.selection), limits.sys,
                                    limits.dia, left));
    picture.emplace_back(EndClip{});
    drawBlackFrames(picture, left);
}

void drawStatisticSummary(Picture& picture, const ReportSource& report, const Rect& rect) {
    const bool showMap = report.settings.showPPorMap != 0;
    const StatisticFigures figures = calcStatistic(report.readings, report.selection, showMap);
    const double tableWidth = rect.width * 0.5;
    append(picture, drawStatistic(figures, showMap, {rect.x, rect.y, tableWidth, rect.height}));
    const LimitShares shares = sharesOf(report, isInStatistic);
    const Rect words{rect.x + tableWidth, rect.y, rect.width - tableWidth, rect.height};
    QString heading = qtTrId("reportReadings", shares.total);
    if (isHalfOfDay(report.selection.view)) heading = qtTrId("reportAllTimesOfDay").arg(heading);
    QStringList lines = QStringList(keepBothText(shares, report)) + tooHighTexts(shares, limitsOf(report));
    if (shares.total == 0) lines += qtTrId("reportNoFigures");
    drawWords(picture, words, heading, lines);
}

} // namespace zel

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

const TextAttribute plainFont{};
const TextAttribute headingFont{.size = 12, .bold = true};
constexpr double noteGap = 4;

/// A heading and lines under it, from the top of the rectangle. \return what is left of it below
Rect drawWords(Picture& picture, const Rect& rect, const QString& heading, const QStringList& lines) {
    double y = rect.top() - lineHeight(headingFont);
    fieldText(picture, heading, {rect.x, y}, rect.width, headingFont);
    for (const QString& line : lines) {
        y -= lineHeight(plainFont) + 1;
        fieldText(picture, line, {rect.x, y}, rect.width, plainFont);
    }
    return {rect.x, rect.y, rect.width, std::max(0.0, y - noteGap - rect.y)};
}

QString keepBothText(const LimitShares& shares, const ReportSource& report) {
    return qtTrId("reportKeepLimits").arg(limitsText(report), shareText(shares.keepBoth, shares.total));
}

QStringList tooHighTexts(const LimitShares& shares) {
    return {qtTrId("reportSysAbove").arg(shareText(shares.sysTooHigh, shares.total)),
            qtTrId("reportDiaAbove").arg(shareText(shares.diaTooHigh, shares.total)),
            qtTrId("reportBothAbove").arg(shareText(shares.bothTooHigh, shares.total))};
}

LimitShares sharesOf(const ReportSource& report, ViewSelection view) {
    ReadingSelection selection = report.selection;
    selection.view = view;
    return limitShares(report.readings, selection, report.settings);
}

} // namespace

void drawHistogramPage(Picture& picture, const ReportSource& report, const Rect& rect) {
    const HistogramFigures figures = calcHistogram(report.readings, report.selection);
    const QString heading = qtTrId("reportReadings", static_cast<int>(figures.total));
    const Rect left = drawWords(picture, rect, heading, {qtTrId("reportHistogramNote")});
    picture.emplace_back(BeginClip{left});
    append(picture, drawHistogram(figures, left));
    picture.emplace_back(EndClip{});
    drawBlackFrames(picture, left);
}

void drawCorrelationPage(Picture& picture, const ReportSource& report, const Rect& rect) {
    const LimitShares shares = sharesOf(report, report.selection.view);
    const Rect left = drawWords(picture, rect, qtTrId("reportReadings", shares.total),
                                {keepBothText(shares, report), tooHighTexts(shares).join(u"     "_s),
                                 qtTrId("reportCorrelationNote")});
    picture.emplace_back(BeginClip{left});
    append(picture, drawCorrelation(calcCorrelation(report.readings, report.selection),
                                    report.settings.sysStandard, report.settings.diaStandard, left));
    picture.emplace_back(EndClip{});
    drawBlackFrames(picture, left);
}

void drawStatisticSummary(Picture& picture, const ReportSource& report, const Rect& rect) {
    const bool showMap = report.settings.showPPorMap != 0;
    const StatisticFigures figures = calcStatistic(report.readings, report.selection, showMap);
    const double tableWidth = rect.width * 0.5;
    append(picture, drawStatistic(figures, showMap, {rect.x, rect.y, tableWidth, rect.height}));
    const LimitShares shares = sharesOf(report, ViewSelection::custom);
    const Rect words{rect.x + tableWidth, rect.y, rect.width - tableWidth, rect.height};
    drawWords(picture, words, qtTrId("reportReadings", shares.total),
              QStringList(keepBothText(shares, report)) + tooHighTexts(shares));
}

} // namespace zel

#include "report/SummaryPage.h"

#include "analysis/Summary.h"
#include "report/FieldText.h"
#include "report/SummaryBoxes.h"
#include "report/SummaryComments.h"
#include "report/SummaryDays.h"
#include "report/SummaryHead.h"
#include "report/SummaryLeftOut.h"
#include "report/SummaryTable.h"
#include "report/SummaryTrend.h"
#include "report/SummaryType.h"

namespace zel {

namespace {

constexpr double betweenBlocks = 8, betweenBoxes = 14, boxHeight = 92, weekShare = 0.58, daysShare = 0.44,
                 leftOfLogo = 130;

Rect takeTop(Rect& rect, double height) {
    rect.height -= height;
    return {rect.x, rect.top(), rect.width, height};
}

void drawBoxes(Picture& picture, const ReportSource& report, const SummaryFigures& figures, Rect rect) {
    const double week = rect.width * weekShare;
    drawSummaryWeek(picture, report, {rect.x, rect.y, week - betweenBoxes, rect.height});
    drawSummaryShares(picture, report, figures, {rect.x + week, rect.y, rect.width - week, rect.height});
}

Rect leftOutRect(const PageGeometry& at) {
    const Rect& foot = at.footerRect;
    return {foot.x, foot.y, foot.width - leftOfLogo, foot.height};
}

} // namespace

bool namesAllOnSummary(const PageGeometry& at, const ReportSource& report, const PagePlace& place) {
    return namesAllLeftOut(report, place, leftOutRect(at));
}

void drawSummaryPage(Picture& picture, const PageGeometry& at, const ReportSource& report,
                     const PagePlace& place) {
    const Rect& foot = at.footerRect;
    drawLogo(picture, at);
    drawSummaryLeftOut(picture, report, place, leftOutRect(at));
    const double body = at.titleRect.y - foot.top();
    Rect rest = drawSummaryHead(picture, report, emptyText(place), {foot.x, foot.top(), foot.width, body});
    rest.height -= betweenBlocks;
    const SummaryFigures figures = calcSummary(report.readings, report.selection.period);
    // All else that the week may have to say fits.
    const double forZone = summaryWeek(report).ofOtherZone > 0 ? lineHeight(summaryFont) : 0;
    drawBoxes(picture, report, figures, takeTop(rest, boxHeight + forZone));
    rest.height -= betweenBlocks;
    drawSummaryTable(picture, report, figures, takeTop(rest, summaryTableHeight()));
    rest.height -= betweenBlocks;
    rest = {rest.x, rest.y + betweenBlocks, rest.width, rest.height - betweenBlocks};
    drawSummaryTrend(picture, report, takeTop(rest, rest.height - betweenBlocks - summaryDaysHeight()));
    rest.height -= betweenBlocks;
    const double days = rest.width * daysShare;
    drawSummaryDays(picture, report, {rest.x, rest.y, days - betweenBoxes, rest.height});
    drawSummaryComments(picture, report, {rest.x + days, rest.y, rest.width - days, rest.height});
}

} // namespace zel

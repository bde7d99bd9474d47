#include "report/PrintView.h"

#include "report/DrawComment.h"
#include "report/DrawPatient.h"
#include "report/DrawTable.h"
#include "report/FigurePages.h"
#include "report/GraphPage.h"
#include "report/PageFrame.h"
#include "report/TableLegend.h"

namespace zel {

int PrintView::getTotalPages(std::optional<Section> printSelection) const {
    const Rect drawing = geometry(printSelection).drawingRect;
    if (printSelection == Section::table) return DrawTable(source).needPages(drawing, true);
    if (printSelection == Section::SWStatistics) return DrawTable(source).needPages(drawing, false);
    if (printSelection == Section::comment) return DrawComment(source).needPages(drawing);
    return 1;
}

PageGeometry PrintView::geometry(std::optional<Section> printSelection) const {
    const QSizeF upright = paperSize.size(QPageSize::Point);
    const bool isPortrait = getOrientation(printSelection) == QPageLayout::Portrait;
    const QSizeF size = isPortrait ? upright : upright.transposed();
    return pageGeometry({size.width(), size.height()}, patientTitleHeight());
}

Picture PrintView::page(std::optional<Section> printSelection, int number) const {
    const PageGeometry at = geometry(printSelection);
    Picture picture;
    if (printSelection) {
        drawPatientTitle(picture, at, source, *printSelection);
        drawBody(picture, at, *printSelection, number);
    }
    drawTitle(picture, at, source, printSelection ? facts(*printSelection).text() : QString());
    drawFooter(picture, at, source);
    drawPageNumber(picture, at, number, getTotalPages(printSelection));
    return picture;
}

void PrintView::drawBody(Picture& picture, const PageGeometry& at, Section section, int number) const {
    switch (section) {
    case Section::graph:
        drawGraph(picture, source, at.drawingRect);
        return drawGraphLegend(picture, source, legendPlace(at), legendWidth(at));
    case Section::PatientProfile: return drawPatient(picture, source, at.drawingRect);
    case Section::histogram: return drawHistogramPage(picture, source, at.drawingRect);
    case Section::correlation: return drawCorrelationPage(picture, source, at.drawingRect);
    case Section::comment: return DrawComment(source).drawRect(picture, at.drawingRect, number);
    case Section::SWStatistics: return drawSummaryStat(picture, at, number);
    case Section::table:
        DrawTable(source).drawRect(picture, at.drawingRect, number, true);
        return drawTableLegend(picture, source, legendPlace(at), legendWidth(at));
    }
}

void PrintView::drawSummaryStat(Picture& picture, const PageGeometry& at, int number) const {
    const Rect& area = at.drawingRect;
    const DrawTable table(source);
    table.drawRect(picture, area, number, false);
    drawTableLegend(picture, source, legendPlace(at), legendWidth(at));
    if (number != 1) return;
    const Rect rows = DrawTable::firstPageRect(area, false);
    drawStatisticSummary(picture, source, {area.x, area.top() - fStatTable, area.width, fStatTable});
    drawTrend(picture, source, {area.x, rows.top(), area.width, rows.height});
}

} // namespace zel

#include "report/PrintView.h"

#include "report/DrawComment.h"
#include "report/DrawPatient.h"
#include "report/DrawTable.h"
#include "report/FigurePages.h"
#include "report/GraphPage.h"
#include "report/PageFrame.h"
#include "report/TableLegend.h"

namespace zel {

PrintView::PrintView(ReportSource report, const QPageSize& paper)
    : source(std::move(report)), paperSize(paper) {}

const CommentPages& PrintView::comments() const {
    if (!commentPages) commentPages = layOutComments(source, geometry(Section::comment).drawingRect);
    return *commentPages;
}

const PatientPages& PrintView::profile() const {
    if (!patientPages) patientPages = layOutPatient(source, geometry(Section::PatientProfile).drawingRect);
    return *patientPages;
}

int PrintView::getTotalPages(std::optional<Section> printSelection) const {
    const Rect drawing = geometry(printSelection).drawingRect;
    if (printSelection == Section::table) return DrawTable(source).needPages(drawing, true);
    if (printSelection == Section::SWStatistics) return DrawTable(source).needPages(drawing, false);
    if (printSelection == Section::comment) return static_cast<int>(comments().pages.size());
    if (printSelection == Section::PatientProfile) return 1 + static_cast<int>(profile().more.size());
    return 1;
}

PageGeometry PrintView::geometry(std::optional<Section> printSelection) const {
    const QSizeF upright = paperSize.size(QPageSize::Point);
    const bool isPortrait = getOrientation(printSelection) == QPageLayout::Portrait;
    const QSizeF size = isPortrait ? upright : upright.transposed();
    return pageGeometry({size.width(), size.height()}, patientTitleHeight());
}

Picture PrintView::page(std::optional<Section> printSelection, int number) const {
    return page(printSelection, number, {number, getTotalPages(printSelection), {}});
}

Picture PrintView::page(std::optional<Section> printSelection, int number, const PagePlace& place) const {
    const PageGeometry at = geometry(printSelection);
    Picture picture;
    if (printSelection) {
        drawPatientTitle(picture, at, source, *printSelection, place);
        drawBody(picture, at, *printSelection, number);
    }
    drawTitle(picture, at, source, printSelection ? facts(*printSelection).text() : QString());
    drawFooter(picture, at, source);
    drawPageNumber(picture, at, place);
    return picture;
}

void PrintView::drawBody(Picture& picture, const PageGeometry& at, Section section, int number) const {
    switch (section) {
    case Section::graph:
        return drawGraphLegend(picture, source, drawGraph(picture, source, at.drawingRect), legendPlace(at),
                               legendWidth(at));
    case Section::PatientProfile:
        drawPatient(picture, source, profile(), at.drawingRect, number);
        return drawPatientNote(picture, profile(), number, legendPlace(at), legendWidth(at));
    case Section::histogram: return drawHistogramPage(picture, source, at.drawingRect);
    case Section::correlation: return drawCorrelationPage(picture, source, at.drawingRect);
    case Section::comment:
        DrawComment(source, comments()).drawRect(picture, at.drawingRect, number);
        return drawCommentLegend(picture, comments(), legendPlace(at), legendWidth(at));
    case Section::SWStatistics: return drawSummaryStat(picture, at, number);
    case Section::table:
        return drawTableLegend(picture, source,
                               DrawTable(source).drawRect(picture, at.drawingRect, number, true),
                               legendPlace(at), legendWidth(at));
    }
}

void PrintView::drawSummaryStat(Picture& picture, const PageGeometry& at, int number) const {
    const Rect& area = at.drawingRect;
    const bool isCommentCut = DrawTable(source).drawRect(picture, area, number, false);
    drawTableLegend(picture, source, isCommentCut, legendPlace(at), legendWidth(at));
    if (number != 1) return;
    const Rect rows = DrawTable::firstPageRect(area, false);
    drawStatisticSummary(picture, source, {area.x, area.top() - fStatTable, area.width, fStatTable});
    drawTrend(picture, source, {area.x, rows.top(), area.width, rows.height});
}

} // namespace zel

#include "report/PrintView.h"

#include "chart/Greys.h"
#include "report/DrawComment.h"
#include "report/DrawPatient.h"
#include "report/DrawTable.h"
#include "report/FigurePages.h"
#include "report/GraphPage.h"
#include "report/PageFrame.h"
#include "report/SummaryPage.h"
#include "report/TableLegend.h"
#include "report/TrendPage.h"

#include <utility>

namespace zel {

namespace {

/// Whether the readings that are left out may stand on pages behind it; the summary has them on its own.
bool canNameBehind(std::optional<Section> section) {
    return section && (namesLeftOut(*section) || onlyCountsLeftOut(*section));
}

/// Of a page of the section where that is the whole document.
PagePlace aloneAt(int number, std::optional<Section> section) {
    PagePlace place{.number = number};
    if (!section) return place;
    place.leftOut = leftOutScope({&*section, 1});
    place.hasComments = section == Section::comment;
    if (canNameBehind(section)) place.namedIn = section;
    return place;
}

} // namespace

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

const LeftOutPages& PrintView::leftOut(Section section, const LeftOutScope& scope) const {
    const auto [found, isNew] = leftOutLists.try_emplace(std::pair(getOrientation(section), scope));
    if (isNew) found->second = layOutLeftOut(source, scope, geometry(section).drawingRect);
    return found->second;
}

int PrintView::getTotalPages(std::optional<Section> printSelection) const {
    const int own = ownPages(printSelection);
    if (own == 0 || !canNameBehind(printSelection)) return own;
    return own + pagesBehind(*printSelection, aloneAt(1, printSelection).leftOut);
}

int PrintView::pagesBehind(Section section, const LeftOutScope& scope) const {
    return static_cast<int>(leftOut(section, scope).pages.size());
}

bool PrintView::namesAllOnSummary(const PagePlace& place) const {
    return zel::namesAllOnSummary(geometry(Section::summary), source, place);
}

int PrintView::ownPages(std::optional<Section> printSelection) const {
    if (printSelection == Section::table || printSelection == Section::SWStatistics)
        return DrawTable(source).needPages(geometry(printSelection).drawingRect,
                                           printSelection == Section::table);
    if (printSelection == Section::comment) return static_cast<int>(comments().pages.size());
    if (printSelection == Section::PatientProfile) return 1 + static_cast<int>(profile().more.size());
    return 1;
}

PageGeometry PrintView::geometry(std::optional<Section> printSelection) const {
    const QSizeF upright = paperSize.size(QPageSize::Point);
    const bool isPortrait = getOrientation(printSelection) == QPageLayout::Portrait;
    const QSizeF size = isPortrait ? upright : upright.transposed();
    // Measured once: a font is looked up for it, and each page asks for its geometry several times.
    if (!titleHeight) titleHeight = patientTitleHeight();
    return pageGeometry({size.width(), size.height()}, *titleHeight);
}

Picture PrintView::page(std::optional<Section> printSelection, int number) const {
    PagePlace place = aloneAt(number, printSelection);
    place.total = getTotalPages(printSelection);
    return page(printSelection, number, place);
}

Picture PrintView::page(std::optional<Section> printSelection, int number, const PagePlace& place) const {
    const PageGeometry at = geometry(printSelection);
    Picture picture;
    if (printSelection == Section::summary) {
        drawTitle(picture, at, source, facts(Section::summary).text());
        drawSummaryPage(picture, at, source, place);
        drawPageNumber(picture, at, place);
        return inGreys(std::move(picture)); // for any printer and fax
    }
    if (printSelection) {
        const Head drawn = head(at, *printSelection, place);
        picture = drawn.patient;
        drawBody(picture, at, *printSelection, number, place.leftOut);
        picture.insert(picture.end(), drawn.title.begin(), drawn.title.end());
    } else {
        drawTitle(picture, at, source, QString());
    }
    drawFooter(picture, at, source);
    drawPageNumber(picture, at, place);
    return picture;
}

/// A first page may say more, which another document leaves out.
PrintView::Head PrintView::head(const PageGeometry& at, Section section, const PagePlace& place) const {
    const auto made = [&] {
        Head drawn;
        drawPatientTitle(drawn.patient, at, source, section, place);
        drawTitle(drawn.title, at, source, facts(section).text());
        return drawn;
    };
    if (place.number == 1) return made();
    const auto found = heads.find(section);
    return found != heads.end() ? found->second : heads.emplace(section, made()).first->second;
}

void PrintView::drawLegend(Picture& picture, const PageGeometry& at, Section section,
                           bool isCommentCut) const {
    const auto [found, isNew] = legends.try_emplace(std::pair(section, isCommentCut));
    if (isNew) drawTableLegend(found->second, source, isCommentCut, legendPlace(at), legendWidth(at));
    picture.insert(picture.end(), found->second.begin(), found->second.end());
}

void PrintView::drawBody(Picture& picture, const PageGeometry& at, Section section, int number,
                         const LeftOutScope& scope) const {
    const int own = ownPages(section);
    if (canNameBehind(section) && number > own)
        return drawLeftOut(picture, source, leftOut(section, scope), at.drawingRect, number - own);
    switch (section) {
    case Section::summary: return; // has a frame of its own
    case Section::graph:
        return drawGraphLegend(picture, source, drawGraph(picture, source, at.drawingRect), legendPlace(at),
                               legendWidth(at));
    case Section::PatientProfile:
        drawPatient(picture, source, profile(), at.drawingRect, number);
        return drawPatientNote(picture, profile(), number, legendPlace(at), legendWidth(at));
    case Section::histogram: return drawHistogramPage(picture, source, at.drawingRect);
    case Section::correlation: return drawCorrelationPage(picture, source, at.drawingRect);
    case Section::trend:
        drawTrendPage(picture, source, at.drawingRect);
        return drawTrendLegend(picture, source, legendPlace(at), legendWidth(at));
    case Section::comment:
        DrawComment(source, comments()).drawRect(picture, at.drawingRect, number);
        return drawCommentLegend(picture, comments(), legendPlace(at), legendWidth(at));
    case Section::SWStatistics: return drawSummaryStat(picture, at, number);
    case Section::table:
        return drawLegend(picture, at, section,
                          DrawTable(source, &widths).drawRect(picture, at.drawingRect, number, true));
    }
}

void PrintView::drawSummaryStat(Picture& picture, const PageGeometry& at, int number) const {
    const Rect& area = at.drawingRect;
    const bool isCommentCut = DrawTable(source, &widths).drawRect(picture, area, number, false);
    drawLegend(picture, at, Section::SWStatistics, isCommentCut);
    if (number != 1) return;
    const Rect rows = DrawTable::firstPageRect(area, false);
    drawStatisticSummary(picture, source, {area.x, area.top() - fStatTable, area.width, fStatTable});
    drawBloodGraph(picture, source, {area.x, rows.top(), area.width, rows.height});
}

} // namespace zel

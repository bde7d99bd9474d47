#include "report/ReportPainter.h"

#include "chart/DocumentMemory.h"
#include "chart/PicturePainter.h"
#include "report/ReportDocument.h"

#include <QPagedPaintDevice>
#include <QPainter>

namespace zel {

namespace {

constexpr double pointsPerInch = 72;

/// The whole paper, so that a page's own margins are the only ones.
bool setLayout(QPagedPaintDevice& device, const PrintView& view, Section section) {
    QPageLayout layout(view.paper(), getOrientation(section), QMarginsF());
    layout.setMode(QPageLayout::FullPageMode);
    return device.setPageLayout(layout);
}

void paintPage(QPainter& painter, const Picture& picture, double height, DocumentMemory& memory) {
    painter.save();
    painter.scale(painter.device()->logicalDpiX() / pointsPerInch,
                  painter.device()->logicalDpiY() / pointsPerInch);
    paintPicture(painter, picture, height, &memory);
    painter.restore();
}

bool beginPage(QPagedPaintDevice& device, QPainter& painter, const PrintView& view,
               const ReportDocument::Page& page) {
    if (page.number == 1 && !setLayout(device, view, page.section)) return false;
    return painter.isActive() ? device.newPage() : painter.begin(&device);
}

} // namespace

bool paintReport(QPagedPaintDevice& device, const PrintView& view, std::span<const Section> sections) {
    const ReportDocument document(view, sections);
    DocumentMemory memory;
    QPainter painter;
    for (std::size_t index = 0; index < document.pages().size(); ++index) {
        const ReportDocument::Page& page = document.pages()[index];
        if (!beginPage(device, painter, view, page)) return false;
        paintPage(painter, document.page(index), view.geometry(page.section).pageSize.height, memory);
    }
    return painter.isActive() && painter.end();
}

Size previewPageSize(QPageLayout::Orientation orientation) {
    return orientation == QPageLayout::Portrait ? Size{298, 387} : Size{525, 403};
}

void paintPreview(QPainter& painter, const QRectF& bounds, const PrintView& view,
                  std::optional<Section> printSelection, int page) {
    const PageGeometry at = view.geometry(printSelection);
    const Size box = previewPageSize(getOrientation(printSelection));
    const QPointF corner = bounds.center() - QPointF(box.width, box.height) / 2;
    const Rect sheet = mapRectToRect(at.pageSize, {corner.x(), corner.y(), box.width, box.height});
    painter.fillRect(bounds, grayBackgroundcolor);
    painter.fillRect(QRectF(corner, QSizeF(box.width, box.height)), Qt::white);
    painter.save();
    painter.translate(sheet.x, sheet.y);
    painter.scale(sheet.width / at.pageSize.width, sheet.height / at.pageSize.height);
    paintPicture(painter, view.page(printSelection, page), at.pageSize.height);
    painter.restore();
}

} // namespace zel

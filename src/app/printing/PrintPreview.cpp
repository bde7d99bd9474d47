#include "app/printing/PrintPreview.h"

#include "app/widgets/Style.h"
#include "report/ReportPainter.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionFocusRect>

#include <algorithm>

namespace zel {

namespace {
constexpr double edge = Style::near; ///< least room around the page
}

PrintPreview::PrintPreview(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize PrintPreview::sizeHint() const {
    const Size portrait = previewPageSize(QPageLayout::Portrait);
    const Size landscape = previewPageSize(QPageLayout::Landscape);
    return QSizeF(std::max(portrait.width, landscape.width) + 2 * edge,
                  std::max(portrait.height, landscape.height) + 2 * edge)
        .toSize();
}

void PrintPreview::gotoPreviewPage(const PrintView* view, std::optional<Section> printSelection, int page) {
    shown = view;
    section = printSelection;
    currentPage = page;
    bufImage = {};
    update();
}

QPixmap PrintPreview::painted() const {
    QPixmap pixmap(size() * devicePixelRatioF());
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    pixmap.fill(grayBackgroundcolor);
    if (!shown) return pixmap;
    const Size box = previewPageSize(getOrientation(section));
    const double scale = std::min(width() / (box.width + 2 * edge), height() / (box.height + 2 * edge));
    QPainter painter(&pixmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    paintPreview(painter, QRectF(0, 0, width() / scale, height() / scale), *shown, section, currentPage);
    const QSizeF page(box.width, box.height);
    const QRectF sheet(QPointF(width() / scale - box.width, height() / scale - box.height) / 2, page);
    if (Style::isDark(palette())) { // the paper stays white
        QPainterPath around;
        around.addRect(0, 0, width() / scale, height() / scale);
        around.addRect(sheet); // a hole
        painter.fillPath(around, palette().window());
    }
    painter.setPen(QPen(Style::border(palette()), 0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(sheet);
    return pixmap;
}

void PrintPreview::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) bufImage = {};
}

void PrintPreview::paintEvent(QPaintEvent*) {
    if (bufImage.size() != size() * devicePixelRatioF()) bufImage = painted();
    QPainter painter(this);
    painter.drawPixmap(0, 0, bufImage);
    if (!hasFocus()) return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

} // namespace zel

#include "app/widgets/PictureView.h"

#include "app/widgets/Spoken.h"
#include "app/widgets/Style.h"
#include "chart/PicturePainter.h"

#include <QEvent>
#include <QPainter>

#include <cmath>

namespace zel {

PictureView::PictureView(const QString& name, const QString& title, QWidget* parent) : QWidget(parent) {
    setObjectName(name);
    setAccessibleName(title);
    speakAs(*this, QAccessible::Graphic);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PictureView::invalidate() {
    base = {};
    update();
}

Rect PictureView::area() const { return {0, 0, static_cast<double>(width()), static_cast<double>(height())}; }

Point PictureView::toPicture(QPoint at) const {
    return {static_cast<double>(at.x()), static_cast<double>(height() - 1 - at.y())};
}

QPoint PictureView::toView(Point at) const {
    return {static_cast<int>(at.x), height() - 1 - static_cast<int>(at.y)};
}

void PictureView::paintBase() {
    const double density = devicePixelRatioF();
    const QSize pixels(static_cast<int>(std::ceil(width() * density)),
                       static_cast<int>(std::ceil(height() * density)));
    base = QImage(pixels, QImage::Format_RGB32);
    base.setDevicePixelRatio(density);
    base.fill(palette().color(QPalette::Window));
    QPainter painter(&base);
    paintPicture(painter, inColours(makePicture(area()), colours()), height());
}

void PictureView::paintEvent(QPaintEvent*) {
    if (base.isNull() || !qFuzzyCompare(base.devicePixelRatio(), devicePixelRatioF())) paintBase();
    QPainter painter(this);
    painter.drawImage(QPoint(), base);
    paintOver(painter);
    if (!hasFocus()) return;
    painter.setPen(QPen(Style::focus(palette()), Style::ring));
    painter.drawRect(focusRect().adjusted(1, 1, -1, -1));
}

void PictureView::resizeEvent(QResizeEvent*) { invalidate(); }

ScreenColours PictureView::colours() const { return Style::picture(palette()); }

/// The same picture, in other colours.
void PictureView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) return;
    base = {};
    update();
}

} // namespace zel

#include "app/graph/CommentColorView.h"

#include "app/graph/ChartComments.h"
#include "app/widgets/Log.h"
#include "app/widgets/Spoken.h"
#include "chart/StyleTable.h"

#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QToolTip>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int cellHeight = 30;
constexpr int imageSize = 28;
constexpr QSize pickerSize{36, commentColourTotal* cellHeight};

} // namespace

CommentColorView::CommentColorView(QWidget* parent) : QWidget(parent, Qt::Popup) {
    setObjectName(u"CommentColorView"_s);
    setAccessibleName(qtTrId("colourPicker"));
    speakAs(*this, QAccessible::List);
    setFixedSize(pickerSize);
    setMouseTracking(true);
    setAttribute(Qt::WA_TranslucentBackground);
}

void CommentColorView::open(QPoint global, int selectedColorIndex) {
    const QRect screen = parentWidget()->screen()->availableGeometry();
    move(std::clamp(global.x(), screen.left(), screen.right() - width()),
         std::clamp(global.y(), screen.top(), screen.bottom() - height()));
    mark(selectedColorIndex);
    show();
    setFocus();
}

void CommentColorView::mark(int colourIndex) {
    hovered = colourIndex;
    if (hovered >= 0) setAccessibleDescription(colourName(hovered));
    update();
}

void CommentColorView::choose(int colourIndex) {
    qCDebug(lcApp, "CommentColorView mouseDown 3 _selectedColorIndex %d", colourIndex);
    hide();
    emit setSelectedColor(colourIndex);
}

int CommentColorView::ptToSelectIndex(QPoint at) const {
    return rect().contains(at) ? std::min(at.y() / cellHeight, commentColourTotal - 1) : -1;
}

void CommentColorView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QIcon(u":/images/CommentDegreeBackgroung.svg"_s).paint(&painter, rect()); // spelled so in the resources
    const int left = (width() - imageSize) / 2, inset = (cellHeight - imageSize) / 2;
    for (int index = 0; index < commentColourTotal; ++index)
        QIcon(commentImage(index, index == hovered))
            .paint(&painter, left, index * cellHeight + inset, imageSize, imageSize);
}

void CommentColorView::mouseMoveEvent(QMouseEvent* event) {
    const int index = ptToSelectIndex(event->position().toPoint());
    mark(index);
    QToolTip::showText(event->globalPosition().toPoint(), index < 0 ? QString() : colourName(index), this);
}

void CommentColorView::mouseReleaseEvent(QMouseEvent* event) {
    const int index = ptToSelectIndex(event->position().toPoint());
    if (index >= 0 && event->button() == Qt::LeftButton) choose(index);
}

void CommentColorView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up: return mark(std::max(0, hovered - 1));
    case Qt::Key_Down: return mark(std::min(commentColourTotal - 1, hovered + 1));
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (hovered >= 0) choose(hovered);
        return;
    case Qt::Key_Escape: hide(); return;
    default: QWidget::keyPressEvent(event);
    }
}

void CommentColorView::leaveEvent(QEvent*) { mark(-1); }

} // namespace zel

#include "app/graph/CommentImageBtn.h"

#include "app/graph/ChartComments.h"
#include "app/widgets/Log.h"
#include "app/widgets/Style.h"

#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QToolTip>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QCursor cursorFor(bool valid) {
    if (!valid) return Qt::CrossCursor;
    constexpr int size = 32;
    return QCursor(QIcon(u":/images/commentCursor.svg"_s).pixmap(size, size), 2, 2);
}

} // namespace

CommentImageBtn::CommentImageBtn(std::function<bool(QPoint)> validPlace, QWidget* parent)
    : QToolButton(parent), isValidPlace(std::move(validPlace)) {
    setObjectName(u"CommentImageBtn"_s);
    setAccessibleName(qtTrId("addComment"));
    setIconSize({Style::smallIcon, Style::smallIcon});
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::OpenHandCursor);
    setImage(0);
}

void CommentImageBtn::setImage(int colourIndex) { setIcon(QIcon(commentImage(colourIndex, false))); }

void CommentImageBtn::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    qCInfo(lcApp, "mouse down");
    setFocus(Qt::MouseFocusReason); // for the Escape key
    drag = Drag::armed;
    setDown(true);
}

void CommentImageBtn::mouseMoveEvent(QMouseEvent* event) {
    if (drag == Drag::none) return;
    if (drag == Drag::armed && rect().contains(event->position().toPoint())) return;
    const QCursor cursor = cursorFor(isValidPlace(event->globalPosition().toPoint()));
    if (drag == Drag::armed)
        QGuiApplication::setOverrideCursor(cursor);
    else
        QGuiApplication::changeOverrideCursor(cursor);
    drag = Drag::moving;
}

void CommentImageBtn::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || drag == Drag::none) return;
    const bool wasMoved = drag == Drag::moving;
    disarm();
    const QPoint at = event->globalPosition().toPoint();
    if (!wasMoved)
        QToolTip::showText(at, toolTip(), this);
    else if (isValidPlace(at))
        emit dropped(at);
}

void CommentImageBtn::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (drag != Drag::none && key == Qt::Key_Escape) return disarm();
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter) return click();
    QToolButton::keyPressEvent(event);
}

void CommentImageBtn::hideEvent(QHideEvent* event) {
    disarm();
    QToolButton::hideEvent(event);
}

void CommentImageBtn::disarm() {
    if (drag == Drag::moving) QGuiApplication::restoreOverrideCursor();
    drag = Drag::none;
    setDown(false);
}

} // namespace zel

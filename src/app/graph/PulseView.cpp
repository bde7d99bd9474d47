#include "app/graph/PulseView.h"

#include "app/widgets/Log.h"
#include "chart/PicturePainter.h"
#include "chart/TimeAxis.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// Plain text, with its line breaks.
QString asToolTip(const QString& text) {
    return u"<p style='white-space: pre-wrap'>%1</p>"_s.arg(text.toHtmlEscaped());
}

Instant unlessSameDay(Instant moved, Instant stored) {
    return DateToDayBoundary(moved, true) == DateToDayBoundary(stored, true) ? stored : moved;
}

bool isSame(const TimeScale& a, const TimeScale& b) {
    return a.begin == b.begin && a.end == b.end && a.left == b.left && a.width == b.width;
}

} // namespace

PulseView::PulseView(const ChartSource& toShow, ChartComments& chartComments, QWidget* parent)
    : ChartView(u"PulseView"_s, qtTrId("pulseChart"), DrawPulse, toShow, parent), comments(chartComments) {
    setMinimumHeight(90);
    connect(&comments, &ChartComments::selected, this, [this] {
        deselected.clear();
        createComments();
    });
}

std::vector<Point> PulseView::marksOf(const ReadingModel& reading) const {
    const ChartScale at = scale();
    return {{std::trunc(at.time.calcXPos(reading.ReadingDate.value_or(at.time.begin))),
             std::trunc(at.mapPulseValToY(reading.pulse))}};
}

void PulseView::invalidate() {
    ChartView::invalidate();
    if (drag && !isSame(drag->time, scale().time))
        return cancelDragging(); // its edges stand for other days now
    createComments();
}

void PulseView::createComments() {
    if (drag) return;
    const ChartScale at = scale();
    const bool bShowComment = shown().data.hasData() && isShortPeriod(dayDiff(at.time, shown().zone));
    boxes = bShowComment ? commentBoxes(comments.all(), shown().period, at.time) : std::vector<CommentBox>{};
    for (CommentBox& box : boxes)
        box.isSelected = box.isSelected && box.CommentID != deselected;
    drawManager.removeAllObjects();
    // The selected one lies on top: of two boxes that touch, it has the handle.
    for (const bool selected : {false, true})
        for (const CommentBox& box : boxes)
            if (box.isSelected == selected) createCommentInRect(drawManager, box, at.totalRect.y);
    updateStrip();
    emit boxesChanged();
}

QString PulseView::selectedBox() const {
    return drawManager.selection().empty() ? QString() : drawManager.selection().front()->CommentID;
}

void PulseView::selectNextBox(bool forward) {
    if (boxes.empty() || drag) return;
    const auto total = static_cast<std::ptrdiff_t>(boxes.size());
    const auto at = std::ranges::find(boxes, selectedBox(), &CommentBox::CommentID) - boxes.begin();
    std::ptrdiff_t next = forward ? at + 1 : at - 1;
    if (at == total)
        next = forward ? 0 : total - 1; // none is selected
    else if (comments.selectedBy(selectedBox()) == SelectedBy::itself)
        next = at;
    next = std::clamp<std::ptrdiff_t>(next, 0, total - 1);
    comments.select(QString(boxes[static_cast<std::size_t>(next)].CommentID)); // the boxes are made anew
}

bool PulseView::isInsideCommentZone(QPoint global) const {
    return zel::isInsideCommentZone(toPicture(mapFromGlobal(global)), area());
}

CommentModel PulseView::dragInComment(QPoint global, int colourIndex) const {
    return newCommentAt(inPlot(toPicture(mapFromGlobal(global))).x, colourIndex, scale().time, shown().zone);
}

void PulseView::createComment(QPoint global, int colourIndex) {
    setFocus(); // the keys go on with it
    comments.create(dragInComment(global, colourIndex));
}

void PulseView::createCommentOn(Instant day, int colourIndex) {
    const TimeScale time = scale().time;
    const Instant noon = DateToDayBoundary(day, true) + std::chrono::hours{12};
    comments.create(newCommentAt(time.calcXPos(noon), colourIndex, time, shown().zone));
}

void PulseView::paintOver(QPainter& painter) {
    Picture picture;
    drawManager.drawComments(picture, area());
    if (!picture.empty()) paintPicture(painter, inColours(picture, colours()), height());
    ChartView::paintOver(painter);
}

void PulseView::updateStrip() {
    update(0, height() - getBaseAreaHeight() - 6, width(), getBaseAreaHeight() + 6);
}

/// Neither edge of a box is dragged to where it could not be seen.
Point PulseView::inPlot(Point at) const {
    const Rect plot = scale().chartRect;
    return {std::clamp(at.x, plot.x, std::max(plot.x, plot.right() - 1)), at.y};
}

void PulseView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || drag) return ChartView::mousePressEvent(event);
    const Point at = toPicture(event->position().toPoint());
    if (const CommentShape held = drawManager.objectWithHandleUnderMousePoint(at))
        return BeginDragging(held, at);
    if (const CommentShape box = drawManager.objectUnderMousePoint(at)) toggle(box);
}

/// A click on the box that the user selected deselects it on the chart; the panel beside goes on showing its
/// comment.
void PulseView::toggle(const CommentShape& shape) {
    const QString CommentID = shape->CommentID;
    const bool wasSelected =
        drawManager.isSelected(shape) && comments.selectedBy(CommentID) == SelectedBy::user;
    deselected = wasSelected ? CommentID : QString();
    if (!wasSelected) comments.select(CommentID);
    createComments();
}

void PulseView::BeginDragging(const CommentShape& shape, Point at) {
    const CommentModel* comment = comments.find(shape->CommentID);
    if (!comment) {
        qCWarning(lcApp, "Error : no comment model object at end of dragging\n");
        return;
    }
    drag = Drag{shape, *comment, shape->bounds(), scale().time};
    drawManager.deselectAll();
    drawManager.selectObject(shape);
    shape->mouseDown(at);
    updateStrip();
    // Where what was typed cannot be saved, a message has taken the pointer away.
    if (!comments.select(QString(shape->CommentID))) cancelDragging();
}

void PulseView::mouseMoveEvent(QMouseEvent* event) {
    const Point at = toPicture(event->position().toPoint());
    if (!drag) {
        showHandleCursor(at);
        return ChartView::mouseMoveEvent(event);
    }
    // A message has taken the release away.
    if (!event->buttons().testFlag(Qt::LeftButton)) return cancelDragging();
    drag->shape->mouseDragged(inPlot(at));
    const Rect drawn = drag->shape->drawBounds();
    qCDebug(lcApp, "mouseDragged %g %g %g %g", drawn.x, drawn.y, drawn.width, drawn.height);
    comments.showDates(draggedComment(drag->comment, *drag->shape));
    updateStrip();
}

void PulseView::mouseReleaseEvent(QMouseEvent* event) {
    if (drag && event->button() == Qt::LeftButton) EndDragging();
}

/// The edge that was not dragged keeps its date to the letter, unless it was passed and is the other end now.
CommentModel PulseView::draggedComment(const CommentModel& comment, const GFXRoundRect& shape) const {
    const Period dates = draggedDates(shape.bounds(), shape.dragRightHandle(), scale().time);
    const Period now = commentPeriod(comment).value_or(dates);
    Period moved{unlessSameDay(dates.begin, now.begin), unlessSameDay(dates.end, now.end)};
    const bool right = shape.dragRightHandle(), isInOrder = shape.bounds().width >= 0;
    if (right && (isInOrder || shape.isCutLeft)) moved.begin = now.begin;
    if (!right && (isInOrder || shape.isCutRight)) moved.end = now.end;
    CommentModel changed = comment;
    if (moved == now) return changed; // nor is a date that is missing set
    changed.beginDate = moved.begin;
    changed.endDate = moved.end;
    return changed;
}

void PulseView::EndDragging() {
    const Drag ended = *drag;
    const Rect lastRect = ended.shape->bounds();
    if (lastRect == ended.bounds) return cancelDragging(); // a click
    qCDebug(lcApp, "EndDragging: lastRect %g %g %g %g", lastRect.x, lastRect.y, lastRect.width,
            lastRect.height);
    drag.reset();
    // Its text may be newer in the store; a comment that is no longer there is added again.
    const CommentModel* stored = comments.find(ended.comment.CommentID);
    const CommentModel changed = draggedComment(stored ? *stored : ended.comment, *ended.shape);
    if (changed.isSame(ended.comment) || !comments.save(changed)) comments.showDates(ended.comment);
    createComments();
}

void PulseView::cancelDragging() {
    const CommentModel comment = drag->comment;
    drag.reset();
    comments.showDates(comment);
    createComments();
}

void PulseView::showHandleCursor(Point at) {
    if (drawManager.objectWithHandleUnderMousePoint(at))
        setCursor(Qt::SizeHorCursor);
    else if (drawManager.objectUnderMousePoint(at))
        setCursor(Qt::PointingHandCursor);
    else
        unsetCursor();
}

void PulseView::keyPressEvent(QKeyEvent* event) {
    if (drag && event->key() == Qt::Key_Escape) return cancelDragging();
    ChartView::keyPressEvent(event);
}

void PulseView::hideEvent(QHideEvent* event) {
    if (drag) cancelDragging();
    ChartView::hideEvent(event);
}

/// A box's tool tip is its comment's text.
bool PulseView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return ChartView::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const CommentShape box = drawManager.objectUnderMousePoint(toPicture(help->pos()));
    const CommentModel* comment = box ? comments.find(box->CommentID) : nullptr;
    QToolTip::showText(help->globalPos(), comment ? asToolTip(comment->comment) : QString(), this);
    return true;
}

} // namespace zel

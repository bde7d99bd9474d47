#include "chart/GFXRoundRect.h"

#include "chart/Log.h"

#include <algorithm>
#include <cmath>

namespace zel {

namespace {

constexpr double stripY = 15; ///< of every box, in the comment strip
constexpr int cornerRadius = 4;

/// The same area with its origin at the bottom left, after an edge was dragged past the other.
Rect upright(const Rect& rect) {
    return {std::min(rect.x, rect.right()), rect.y, std::abs(rect.width), rect.height};
}

} // namespace

GFXRoundRect::GFXRoundRect(QString shown, const QColor& colour, const Rect& bounds)
    : CommentID(std::move(shown)), strokeColour(colour) {
    setBounds(bounds);
}

void GFXRoundRect::setBounds(const Rect& bounds) {
    box = bounds;
    box.y = stripY;
}

void GFXRoundRect::offsetLocationByY(double by) { box.y += by; }

Rect GFXRoundRect::drawBounds() const { return box.inset(-(2 + strokeWidth)); }
bool GFXRoundRect::containsPoint(Point point) const { return drawBounds().contains(point); }

Rect GFXRoundRect::handleRect(Handle handle) const {
    constexpr double width = 9, mostInside = 4;
    const bool isLeft = handle == left;
    const double inside = std::min(mostInside, std::floor(std::abs(box.width) / 3));
    const double x = isLeft ? box.x + inside - width : box.right() - inside;
    return {x, box.y, (isLeft ? isCutLeft : isCutRight) ? 0 : width, box.height};
}

bool GFXRoundRect::handleContainsPoint(Point point) const {
    return handleRect(left).contains(point) || handleRect(right).contains(point);
}

GFXRoundRect::Handle GFXRoundRect::handleAtPoint(Point point) const {
    if (box.width == 0 && box.height == 0) return right;
    if (handleRect(left).contains(point)) return left;
    return handleRect(right).contains(point) ? right : none;
}

void GFXRoundRect::mouseDown(Point point) {
    dragState = handleAtPoint(point);
    anchor = point;
}

void GFXRoundRect::mouseDragged(Point point) {
    const Point delta{std::trunc(point.x - anchor.x), std::trunc(point.y - anchor.y)};
    // Parts of a unit wait for the next step, or slow drags on a finely scaled screen would fall behind.
    anchor.x += delta.x;
    anchor.y += delta.y;
    if (dragState == none) return;
    box = newBoundsFromBounds(box, dragState, delta);
}

Rect GFXRoundRect::newBoundsFromBounds(const Rect& bounds, Handle handle, Point delta) {
    Rect moved = bounds;
    if (handle == left) {
        moved.x += delta.x;
        moved.width -= delta.x;
    }
    if (handle == right) moved.width += delta.x;
    return moved;
}

void GFXRoundRect::drawWithSelection(Picture& picture, bool selected) const {
    const double width = std::trunc(strokeWidth) + (selected ? 2 : 0);
    picture.emplace_back(RoundRect{upright(box), cornerRadius, strokeColour, width});
    if (!selected) return;
    const Rect drawn = drawBounds();
    qCDebug(lcChart, "get the selected round rect object");
    qCDebug(lcChart, "%g %g %g %g", drawn.x, drawn.y, drawn.width, drawn.height);
}

} // namespace zel

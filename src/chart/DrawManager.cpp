#include "chart/DrawManager.h"

#include <algorithm>

namespace zel {

namespace {

bool holds(std::span<const CommentShape> shapes, const CommentShape& shape) {
    return std::ranges::find(shapes, shape) != shapes.end();
}

template <class Hit>
CommentShape topmost(std::span<const CommentShape> shapes, Hit hit) {
    const auto found = std::find_if(shapes.rbegin(), shapes.rend(), hit);
    return found == shapes.rend() ? nullptr : *found;
}

bool meet(const Rect& a, const Rect& b) {
    return a.x < b.right() && b.x < a.right() && a.y < b.top() && b.y < a.top();
}

} // namespace

void DrawManager::addObject(const CommentShape& shape) {
    if (!holds(shapes, shape)) shapes.push_back(shape);
}

void DrawManager::setObjects(std::vector<CommentShape> objects) {
    shapes = std::move(objects);
    deselectAll();
}

void DrawManager::removeAllObjects() { setObjects({}); }

void DrawManager::selectObject(const CommentShape& shape) {
    if (holds(shapes, shape) && !isSelected(shape)) selected.push_back(shape);
}

void DrawManager::deselectAll() { selected.clear(); }
bool DrawManager::isSelected(const CommentShape& shape) const { return holds(selected, shape); }

CommentShape DrawManager::objectUnderMousePoint(Point point) const {
    return topmost(shapes, [&](const CommentShape& shape) { return shape->containsPoint(point); });
}

CommentShape DrawManager::objectWithHandleUnderMousePoint(Point point) const {
    return topmost(shapes, [&](const CommentShape& shape) { return shape->handleContainsPoint(point); });
}

void DrawManager::drawComments(Picture& picture, const Rect& totalRect) const {
    for (const CommentShape& shape : shapes)
        if (meet(shape->drawBounds(), totalRect)) shape->drawWithSelection(picture, isSelected(shape));
}

} // namespace zel

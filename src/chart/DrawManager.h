#pragma once

#include "chart/GFXRoundRect.h"

#include <memory>
#include <span>
#include <vector>

namespace zel {

/// Shared with whoever drags one, so that the box lives as long as the drag.
using CommentShape = std::shared_ptr<GFXRoundRect>;

/// The boxes on the chart, bottom first, and which of them are selected.
class DrawManager {
public:
    void addObject(const CommentShape& shape);          ///< once only
    void setObjects(std::vector<CommentShape> objects); ///< and deselects all
    void removeAllObjects();
    [[nodiscard]] std::span<const CommentShape> objects() const { return shapes; }

    void selectObject(const CommentShape& shape); ///< one of the objects, once
    void deselectAll();
    [[nodiscard]] std::span<const CommentShape> selection() const { return selected; }
    [[nodiscard]] bool isSelected(const CommentShape& shape) const;

    /// The topmost, or null.
    [[nodiscard]] CommentShape objectUnderMousePoint(Point point) const;
    [[nodiscard]] CommentShape objectWithHandleUnderMousePoint(Point point) const;

    /// Those that show in the chart's area.
    void drawComments(Picture& picture, const Rect& totalRect) const;

private:
    std::vector<CommentShape> shapes;
    std::vector<CommentShape> selected;
};

} // namespace zel

#pragma once

#include "chart/Picture.h"

#include <QString>

namespace zel {

/// The box of a comment on the pulse chart. It never leaves its strip: only its left and right edges move.
class GFXRoundRect {
public:
    GFXRoundRect() = default;
    GFXRoundRect(QString CommentID, const QColor& strokeColour, const Rect& bounds);

    /// The comment that is shown: the store's comments die with every reload, their IDs stay.
    QString CommentID;
    QColor strokeColour;
    double strokeWidth = 1;
    /// The comment goes on where it is not seen: there is no edge to be pulled.
    bool isCutLeft = false;
    bool isCutRight = false;

    [[nodiscard]] const Rect& bounds() const { return box; }
    void setBounds(const Rect& bounds);
    void offsetLocationByY(double by);

    /// What is painted at most.
    [[nodiscard]] Rect drawBounds() const;
    [[nodiscard]] bool containsPoint(Point point) const;

    enum Handle { none = 0, left = 1, right = 2 };
    /// Wide enough to be hit; of a narrow box, most of it lies outside, so that its body can be clicked.
    /// Empty where the box is cut.
    [[nodiscard]] Rect handleRect(Handle handle) const;
    [[nodiscard]] bool handleContainsPoint(Point point) const;
    [[nodiscard]] Handle handleAtPoint(Point point) const;

    void mouseDown(Point point);
    void mouseDragged(Point point); ///< by whole units
    /// The edge that was pressed last is the right one.
    [[nodiscard]] bool dragRightHandle() const { return dragState == right; }
    [[nodiscard]] static Rect newBoundsFromBounds(const Rect& bounds, Handle handle, Point delta);

    void drawWithSelection(Picture& picture, bool selected) const;

private:
    Rect box{0, 0, 35, 15};
    Handle dragState = none; ///< the handle pressed last
    Point anchor;            ///< how far the pointer was followed
};

} // namespace zel

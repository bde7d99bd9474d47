#pragma once

#include "app/graph/ChartComments.h"
#include "app/graph/ChartView.h"
#include "chart/CommentBoxes.h"
#include "chart/DrawManager.h"

namespace zel {

/// The chart of the pulse, with the strip of comment boxes below it.
class PulseView final : public ChartView {
    Q_OBJECT
public:
    PulseView(const ChartSource& toShow, ChartComments& chartComments, QWidget* parent);

    void invalidate() override; ///< and the boxes with it
    /// Boxes for the comments as they are now, unless one is being dragged.
    void createComments();
    /// The comment whose box is selected; null text: none is.
    [[nodiscard]] QString selectedBox() const;
    /// Selects the next box in the order of their begins, or the one before.
    void selectNextBox(bool forward);
    [[nodiscard]] bool isInsideCommentZone(QPoint global) const;
    /// The new comment of the day there.
    [[nodiscard]] CommentModel dragInComment(QPoint global, int colourIndex) const;
    void createComment(QPoint global, int colourIndex);
    void createCommentOn(Instant day, int colourIndex);

signals:
    void boxesChanged();

protected:
    [[nodiscard]] std::vector<Point> marksOf(const ReadingModel& reading) const override;
    void paintOver(QPainter& painter) override;
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    struct Drag {
        CommentShape shape;
        CommentModel comment; ///< as it was at the press
        Rect bounds;          ///< likewise
        TimeScale time;       ///< that the box's edges were placed by
    };
    void toggle(const CommentShape& shape);
    void BeginDragging(const CommentShape& shape, Point at);
    void EndDragging();
    void cancelDragging();
    [[nodiscard]] CommentModel draggedComment(const CommentModel& comment, const GFXRoundRect& shape) const;
    [[nodiscard]] Point inPlot(Point at) const;
    void updateStrip();
    void showHandleCursor(Point at);

    ChartComments& comments;
    DrawManager drawManager;
    std::vector<CommentBox> boxes; ///< in the order of their begins
    QString deselected;            ///< the selected comment, whose box was clicked again
    std::optional<Drag> drag;
};

} // namespace zel

#pragma once

#include <QWidget>

namespace zel {

/// The picker of a comment's colour: four images in a column, over the window until one is chosen.
class CommentColorView final : public QWidget {
    Q_OBJECT
public:
    explicit CommentColorView(QWidget* parent);
    /// Opens the picker at a point of the screen, with the colour marked that is chosen now.
    void open(QPoint global, int selectedColorIndex);

signals:
    void setSelectedColor(int colourIndex);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    [[nodiscard]] int ptToSelectIndex(QPoint at) const;
    void mark(int colourIndex);
    void choose(int colourIndex);

    int hovered = -1; ///< the one that is drawn in its second state
};

} // namespace zel

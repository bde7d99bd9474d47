#pragma once

#include <QToolButton>

#include <functional>

namespace zel {

/// The comment icon, which is dragged to where a new comment is to be. Who cannot drag presses it with a key,
/// and only then is it clicked: a click of the mouse drops nothing.
class CommentImageBtn final : public QToolButton {
    Q_OBJECT
public:
    /// \p validPlace says whether a comment may be dropped at a point of the screen.
    CommentImageBtn(std::function<bool(QPoint global)> validPlace, QWidget* parent);
    void setImage(int colourIndex);

signals:
    void dropped(QPoint global);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    enum class Drag { none, armed, moving };
    void disarm();

    std::function<bool(QPoint)> isValidPlace;
    Drag drag = Drag::none;
};

} // namespace zel

#pragma once

#include "chart/ScreenColours.h"

#include <QImage>
#include <QWidget>

namespace zel {

/// Shows a picture of its own size, painted once and kept until something in it changes.
class PictureView : public QWidget {
    Q_OBJECT
public:
    PictureView(const QString& name, const QString& title, QWidget* parent);
    /// The picture is another one from now on.
    virtual void invalidate();

protected:
    [[nodiscard]] virtual Picture makePicture(const Rect& rect) = 0;
    /// What changes more often than the picture, painted over it.
    virtual void paintOver(QPainter&) {}
    /// What the focus frame goes around.
    [[nodiscard]] virtual QRect focusRect() const { return rect(); }
    /// The picture's whole area, and the view's point in it.
    [[nodiscard]] Rect area() const;
    [[nodiscard]] Point toPicture(QPoint at) const;
    /// The pixel of the view that shows the point.
    [[nodiscard]] QPoint toView(Point at) const;
    /// What is painted over the picture, in its colours on this desktop.
    [[nodiscard]] ScreenColours colours() const;

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void paintBase();

    QImage base; ///< null: to be painted anew
};

} // namespace zel

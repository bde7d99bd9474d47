#pragma once

#include <QProxyStyle>

namespace zel {

/// The desktop's style, with outlines that can be seen around fields, buttons and boxes on a dark or
/// high-contrast desktop too: Qt's own are a little darker than the window, which is nothing on black. And
/// with a ring around a cell that the keys have reached, which leaves its words as they are, and with a
/// highlight on which a menu's words can be read.
class OutlineStyle final : public QProxyStyle {
    Q_OBJECT
public:
    using QProxyStyle::QProxyStyle;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

} // namespace zel

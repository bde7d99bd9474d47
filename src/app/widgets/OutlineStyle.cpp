#include "app/widgets/OutlineStyle.h"

#include "app/widgets/Style.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyleOption>

namespace zel {

namespace {

enum class Outline { none, box, circle };

Outline outlineOf(QStyle::PrimitiveElement element) {
    switch (element) {
    case QStyle::PE_Frame:
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_FrameGroupBox:
    case QStyle::PE_PanelButtonCommand:
    case QStyle::PE_PanelButtonTool:
    case QStyle::PE_IndicatorCheckBox: return Outline::box;
    case QStyle::PE_IndicatorRadioButton: return Outline::circle;
    default: return Outline::none;
    }
}

bool needsOutline(const QStyleOption* option) {
    return option && (Style::isDark(option->palette) || Style::isHighContrast(option->palette));
}

void drawOutline(Outline outline, const QStyleOption& option, QPainter& painter) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const bool isEnabled = option.state & QStyle::State_Enabled;
    painter.setPen(
        QPen(isEnabled ? Style::outline(option.palette) : Style::border(option.palette), Style::line));
    const QRectF frame = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (outline == Outline::circle)
        painter.drawEllipse(frame);
    else
        painter.drawRect(frame);
    painter.restore();
}

/// Around a cell that the keys have reached; the usual one covers its words with a haze.
void drawCellRing(const QStyleOptionFocusRect& option, QPainter& painter) {
    if (!(option.state & QStyle::State_KeyboardFocusChange)) return;
    const bool isChosen = option.backgroundColor == option.palette.color(QPalette::Highlight);
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(option.palette.color(isChosen ? QPalette::HighlightedText : QPalette::Text), Style::line));
    painter.drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.restore();
}

} // namespace

void OutlineStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    const auto* ring = qstyleoption_cast<const QStyleOptionFocusRect*>(option);
    if (element == PE_FrameFocusRect && ring && qobject_cast<const QAbstractItemView*>(widget))
        return drawCellRing(*ring, *painter);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const Outline outline = outlineOf(element);
    if (outline != Outline::none && needsOutline(option)) drawOutline(outline, *option, *painter);
}

void OutlineStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (!entry) return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionMenuItem legible(*entry);
    legible.palette.setColor(QPalette::Highlight, Style::highlight(entry->palette));
    QProxyStyle::drawControl(element, &legible, painter, widget);
}

void OutlineStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    const bool isField = control == CC_ComboBox || control == CC_SpinBox;
    if (isField && needsOutline(option)) drawOutline(Outline::box, *option, *painter);
}

} // namespace zel

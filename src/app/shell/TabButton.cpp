#include "app/shell/TabButton.h"

#include "app/widgets/PageHeading.h"
#include "app/widgets/SeenName.h"
#include "app/widgets/Spoken.h"
#include "app/widgets/Style.h"

#include <QIcon>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace zel {

using namespace Qt::StringLiterals;

namespace {
constexpr int imageSize = Style::tabIcon, margin = Style::apart, gap = Style::near, accent = Style::tight;
}

TabButton::TabButton(const QString& name, const QString& text, QWidget* parent) : QAbstractButton(parent) {
    setObjectName(name);
    setText(text);
    nameAsSeen(*this, text);
    speakAs(*this, QAccessible::PageTab);
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
}

void TabButton::setSlim(bool isSlim) {
    if (slim == isSlim) return;
    slim = isSlim;
    updateGeometry();
}

QString TabButton::imageName() const {
    if (!isEnabled()) return objectName() + ".InactiveImg"_L1;
    return objectName() + (isShown() || isDown() ? ".PressedImg"_L1 : ".ActiveImg"_L1);
}

QSize TabButton::sizeHint() const {
    const QFontMetrics metrics(Style::type(font(), Style::Type::heading));
    const int width = metrics.horizontalAdvance(QString(text()).remove(u'&'));
    return {margin + imageSize + gap + width + margin,
            std::max(imageSize, metrics.height()) + 2 * (slim ? Style::tight : Style::apart)};
}

void TabButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (isShown() || (isEnabled() && underMouse())) painter.fillRect(rect(), Style::hover(palette()));
    if (isShown()) painter.fillRect(0, height() - accent, width(), accent, palette().highlight());

    const QRect image(margin, (height() - imageSize) / 2, imageSize, imageSize);
    QIcon(":/icons/"_L1 + imageName() + ".svg"_L1).paint(&painter, image);
    const QRect words = rect().adjusted(image.right() + 1 + gap, 0, 0, 0);
    const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    painter.setFont(Style::type(font(), Style::Type::heading, isShown()));
    painter.setPen(palette().color(group, QPalette::WindowText));
    painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, text());
    if (!hasFocus()) return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = rect().adjusted(3, 3, -3, -3 - accent);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

} // namespace zel

#include "app/widgets/EmptyState.h"

#include "app/widgets/Style.h"

#include <QIcon>
#include <QVBoxLayout>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

EmptyState::EmptyState(const QString& name, const QString& icon, QWidget* parent)
    : QWidget(parent), picture(new QLabel(this)), lblHeading(new QLabel(this)),
      lblAdvice(new QuietLabel({}, this)) {
    setObjectName(name);
    lblAdvice->setObjectName(name + "Advice"_L1);
    picture->setPixmap(QIcon(icon).pixmap(Style::largeIcon, Style::largeIcon));
    Style::setType(*lblHeading, Style::Type::heading);
    for (QLabel* label : {lblHeading, static_cast<QLabel*>(lblAdvice)}) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignCenter);
        label->setTextFormat(Qt::PlainText);
    }
    lblAdvice->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Style::wide, Style::wide, Style::wide, Style::wide);
    column->setSpacing(Style::apart);
    column->addStretch(2);
    column->addWidget(picture, 0, Qt::AlignHCenter);
    column->addWidget(lblHeading);
    column->addWidget(lblAdvice);
    column->addStretch(3);
}

/// The words without the picture.
int EmptyState::leastHeight(int width) const {
    const QMargins edge = layout()->contentsMargins();
    const int room = width - edge.left() - edge.right();
    return edge.top() + edge.bottom() + layout()->spacing() + lblHeading->heightForWidth(room)
           + lblAdvice->heightForWidth(room);
}

QSize EmptyState::minimumSizeHint() const {
    const int width = fontMetrics().averageCharWidth() * 24;
    if (isHidden()) return {width, 0}; // behind what it would stand for
    return {width, leastHeight(std::max(width, this->width()))};
}

void EmptyState::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    picture->setVisible(height() > leastHeight(width()) + picture->sizeHint().height() + layout()->spacing());
}

void EmptyState::setTexts(const QString& heading, const QString& advice) {
    lblHeading->setText(heading);
    lblAdvice->setText(advice);
    lblAdvice->setAccessibleName(advice);
    setAccessibleName(heading);
    setAccessibleDescription(advice);
}

} // namespace zel

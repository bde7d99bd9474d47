#include "app/EmptyState.h"

#include "app/PageHeading.h"

#include <QIcon>
#include <QVBoxLayout>

namespace zel {

EmptyState::EmptyState(const QString& name, const QString& icon, QWidget* parent)
    : QWidget(parent), lblHeading(new QLabel(this)), lblAdvice(new QLabel(this)) {
    setObjectName(name);
    auto* picture = new QLabel(this);
    picture->setPixmap(QIcon(icon).pixmap(64, 64));
    lblHeading->setFont(scaledFont(font(), 1.2, true));
    for (QLabel* label : {lblHeading, lblAdvice}) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignCenter);
        label->setTextFormat(Qt::PlainText);
    }
    makeQuiet(*lblAdvice);
    lblAdvice->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 24);
    column->setSpacing(12);
    column->addStretch(2);
    column->addWidget(picture, 0, Qt::AlignHCenter);
    column->addWidget(lblHeading);
    column->addWidget(lblAdvice);
    column->addStretch(3);
}

void EmptyState::setTexts(const QString& heading, const QString& advice) {
    lblHeading->setText(heading);
    lblAdvice->setText(advice);
    setAccessibleName(heading);
    setAccessibleDescription(advice);
}

} // namespace zel

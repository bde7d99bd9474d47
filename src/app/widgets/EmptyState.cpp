#include "app/widgets/EmptyState.h"

#include <QIcon>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

EmptyState::EmptyState(const QString& name, const QString& icon, QWidget* parent)
    : QWidget(parent), lblHeading(new QLabel(this)), lblAdvice(new QuietLabel({}, this)) {
    setObjectName(name);
    lblAdvice->setObjectName(name + "Advice"_L1);
    auto* picture = new QLabel(this);
    picture->setPixmap(QIcon(icon).pixmap(64, 64));
    lblHeading->setFont(scaledFont(font(), 1.2, true));
    for (QLabel* label : {lblHeading, static_cast<QLabel*>(lblAdvice)}) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignCenter);
        label->setTextFormat(Qt::PlainText);
    }
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
    lblAdvice->setAccessibleName(advice);
    setAccessibleName(heading);
    setAccessibleDescription(advice);
}

} // namespace zel

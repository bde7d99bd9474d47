#include "app/widgets/SidePanel.h"

#include "app/widgets/PageHeading.h"
#include "app/widgets/Spoken.h"

#include <QVBoxLayout>

namespace zel {

SidePanel::SidePanel(const QString& name, const QString& title, QWidget* parent)
    : QFrame(parent), column(new QVBoxLayout(this)) {
    setObjectName(name);
    setAccessibleName(title);
    setFrameShape(QFrame::StyledPanel);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    auto* heading = new QLabel(title, this);
    heading->setFont(scaledFont(font(), 1.1, true));
    column->setContentsMargins(14, 12, 14, 12);
    column->setSpacing(2);
    column->addWidget(heading);
}

QLabel* SidePanel::addValue(const QString& name, const QString& title) {
    auto* caption = new QuietLabel(title, this); // before the value, also for who has them read out
    auto* value = new QLabel(this);
    value->setObjectName(name);
    value->setTextFormat(Qt::PlainText);
    value->setWordWrap(true);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    column->addSpacing(6);
    caption->setWordWrap(true);
    speakAsValue(*value, *caption);
    column->addWidget(caption);
    column->addWidget(value);
    return value;
}

} // namespace zel

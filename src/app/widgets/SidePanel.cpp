#include "app/widgets/SidePanel.h"

#include "app/widgets/PageHeading.h"
#include "app/widgets/Spoken.h"
#include "app/widgets/Style.h"

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
    Style::setType(*heading, Style::Type::heading);
    column->setContentsMargins(Style::apart, Style::apart, Style::apart, Style::apart);
    column->setSpacing(Style::none);
    column->addWidget(heading);
}

QLabel* SidePanel::addValue(const QString& name, const QString& title) {
    auto* caption = new QuietLabel(title, this); // before the value, also for who has them read out
    auto* value = new QLabel(this);
    value->setObjectName(name);
    value->setTextFormat(Qt::PlainText);
    value->setWordWrap(true);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    column->addSpacing(Style::tight);
    caption->setWordWrap(true);
    speakAsValue(*value, *caption);
    column->addWidget(caption);
    column->addWidget(value);
    return value;
}

} // namespace zel

#include "app/widgets/PageHeading.h"

#include <QEvent>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

PageHeading::PageHeading(QWidget* parent)
    : QWidget(parent), lblHeading(new QLabel(this)), lblDetail(new QuietLabel({}, this)) {
    lblHeading->setObjectName(u"lblHeading"_s);
    lblHeading->setFont(Style::type(font(), Style::Type::title));
    lblHeading->setTextFormat(Qt::PlainText);
    lblHeading->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblDetail->setObjectName(u"lblDetail"_s);
    lblDetail->setTextFormat(Qt::PlainText);
    lblDetail->setWordWrap(true);
    lblDetail->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Style::none);
    column->addWidget(lblHeading);
    column->addWidget(lblDetail);
}

void PageHeading::setTexts(const QString& heading, const QString& detail) {
    wholeHeading = heading;
    lblHeading->setText(heading);
    if (isVisible()) fitHeading();
    lblHeading->setToolTip(heading);
    lblDetail->setText(detail);
    lblHeading->setAccessibleName(heading);
    lblDetail->setAccessibleName(detail);
}

void PageHeading::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    fitHeading();
}

void PageHeading::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange) return;
    lblHeading->setFont(Style::type(font(), Style::Type::title));
    fitHeading();
}

/// What is left out of a long name lies in its middle: what stands at the end tells patients apart.
void PageHeading::fitHeading() {
    lblHeading->setText(lblHeading->fontMetrics().elidedText(wholeHeading, Qt::ElideMiddle, width()));
}

QuietLabel::QuietLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    Style::followText(*this, &Style::quiet);
}

} // namespace zel

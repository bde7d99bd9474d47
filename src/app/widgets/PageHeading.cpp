#include "app/widgets/PageHeading.h"

#include <QEvent>
#include <QGuiApplication>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

namespace {
constexpr double headingSize = 1.5; ///< of the other texts'
}

PageHeading::PageHeading(QWidget* parent)
    : QWidget(parent), lblHeading(new QLabel(this)), lblDetail(new QuietLabel({}, this)) {
    lblHeading->setObjectName(u"lblHeading"_s);
    lblHeading->setFont(scaledFont(font(), headingSize, true));
    lblHeading->setTextFormat(Qt::PlainText);
    lblHeading->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblDetail->setObjectName(u"lblDetail"_s);
    lblDetail->setTextFormat(Qt::PlainText);
    lblDetail->setWordWrap(true);
    lblDetail->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
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
    lblHeading->setFont(scaledFont(font(), headingSize, true));
    fitHeading();
}

/// What is left out of a long name lies in its middle: what stands at the end tells patients apart.
void PageHeading::fitHeading() {
    lblHeading->setText(lblHeading->fontMetrics().elidedText(wholeHeading, Qt::ElideMiddle, width()));
}

QFont scaledFont(const QFont& font, double factor, bool bold) {
    QFont scaled = font;
    if (font.pointSizeF() > 0) scaled.setPointSizeF(font.pointSizeF() * factor);
    scaled.setBold(bold);
    return scaled;
}

QuietLabel::QuietLabel(const QString& text, QWidget* parent) : QLabel(text, parent) { dim(); }

void QuietLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange) dim();
}

void QuietLabel::dim() {
    QPalette dimmed = QGuiApplication::palette();
    QColor faint = dimmed.color(QPalette::WindowText);
    faint.setAlphaF(0.65F);
    dimmed.setColor(QPalette::WindowText, faint);
    dimmed.setColor(QPalette::Text, faint); // its role on the panels' background
    setPalette(dimmed);
}

} // namespace zel

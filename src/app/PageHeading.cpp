#include "app/PageHeading.h"

#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

PageHeading::PageHeading(QWidget* parent)
    : QWidget(parent), lblHeading(new QLabel(this)), lblDetail(new QLabel(this)) {
    lblHeading->setObjectName(u"lblHeading"_s);
    lblHeading->setFont(scaledFont(font(), 1.5, true));
    lblHeading->setTextFormat(Qt::PlainText);
    lblHeading->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblDetail->setObjectName(u"lblDetail"_s);
    lblDetail->setTextFormat(Qt::PlainText);
    lblDetail->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    makeQuiet(*lblDetail);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(lblHeading);
    column->addWidget(lblDetail);
}

void PageHeading::setTexts(const QString& heading, const QString& detail) {
    lblHeading->setText(heading);
    lblHeading->setToolTip(heading);
    lblDetail->setText(detail);
    lblHeading->setAccessibleName(heading);
    lblDetail->setAccessibleName(detail);
}

QFont scaledFont(const QFont& font, double factor, bool bold) {
    QFont scaled = font;
    if (font.pointSizeF() > 0) scaled.setPointSizeF(font.pointSizeF() * factor);
    scaled.setBold(bold);
    return scaled;
}

void makeQuiet(QLabel& label) { label.setForegroundRole(QPalette::PlaceholderText); }

} // namespace zel

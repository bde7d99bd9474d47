#include "app/patients/PatientFieldBox.h"

#include "app/widgets/PageHeading.h"
#include "app/widgets/RequiredMark.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QStringBuilder>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int frameWidth = 2;
constexpr QStringView warningSign = u"\u26A0 "; // not by colour alone

} // namespace

PatientFieldBox::PatientFieldBox(const QString& title, QWidget* parent)
    : QWidget(parent), lblTitle(new QuietLabel(title, this)), rowLayout(new QHBoxLayout),
      lblProblem(new QLabel(this)) {
    lblProblem->setTextFormat(Qt::PlainText);
    lblProblem->setWordWrap(true);
    lblProblem->hide();
    rowLayout->setContentsMargins(frameWidth + 1, frameWidth + 1, frameWidth + 1, frameWidth + 1);
    rowLayout->setSpacing(6);
    for (QLabel* label : {static_cast<QLabel*>(lblTitle), lblProblem})
        label->setContentsMargins(frameWidth + 1, 0, frameWidth + 1, 0); // in line with the inputs
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(1);
    column->addWidget(lblTitle);
    column->addLayout(rowLayout); // beside the title, which names them to screen readers
    column->addWidget(lblProblem);
    column->addStretch(1);
    colourNote();
}

void PatientFieldBox::addInput(QWidget* input, const QString& name, int stretch) {
    input->setAccessibleName(name);
    rowLayout->addWidget(input, stretch);
    if (inputs.empty()) lblTitle->setBuddy(input);
    inputs.push_back(input);
    lblProblem->setObjectName(inputs.front()->objectName() + "Problem"_L1);
}

void PatientFieldBox::addRemark(QWidget* remark) { rowLayout->addWidget(remark); }

void PatientFieldBox::setTitle(const QString& title) {
    lblTitle->setText(isRequired ? requiredTitle(title) : title);
    if (inputs.size() == 1) inputs.front()->setAccessibleName(title);
}

void PatientFieldBox::setProblem(const QString& text) {
    lblProblem->setText(text.isEmpty() ? QString() : warningSign % text);
    lblProblem->setVisible(!text.isEmpty());
    told = text;
    describe();
    update();
}

void PatientFieldBox::setRequired() {
    isRequired = true;
    lblTitle->setText(requiredTitle(lblTitle->text()));
    describe();
}

void PatientFieldBox::describe() {
    for (QWidget* input : inputs)
        input->setAccessibleDescription(isRequired ? requiredDescription(told) : told);
}

void PatientFieldBox::paintEvent(QPaintEvent*) {
    if (lblProblem->isHidden()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(alarm(), frameWidth));
    painter.drawRoundedRect(QRectF(rowLayout->geometry()).adjusted(1, 1, -1, -1), 4, 4);
}

void PatientFieldBox::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) colourNote();
}

/// A red that can be read on the palette's background.
QColor PatientFieldBox::alarm() const {
    const bool isDark = palette().color(QPalette::Base).lightness() < 128;
    return isDark ? QColor(255, 138, 128) : QColor(179, 0, 30);
}

void PatientFieldBox::colourNote() {
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, alarm());
    colours.setColor(QPalette::Text, alarm()); // its role on the panels' background
    lblProblem->setPalette(colours);
}

} // namespace zel

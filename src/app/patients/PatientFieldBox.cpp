#include "app/patients/PatientFieldBox.h"

#include "app/widgets/PageHeading.h"
#include "app/widgets/RequiredMark.h"
#include "app/widgets/Style.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QStringBuilder>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView warningSign = u"\u26A0 "; // not by colour alone

} // namespace

PatientFieldBox::PatientFieldBox(const QString& title, QWidget* parent)
    : QWidget(parent), lblTitle(new QuietLabel(title, this)), rowLayout(new QHBoxLayout),
      lblProblem(new QLabel(this)) {
    lblProblem->setTextFormat(Qt::PlainText);
    lblProblem->setWordWrap(true);
    lblProblem->hide();
    rowLayout->setContentsMargins(Style::tight, Style::tight, Style::tight, Style::tight);
    rowLayout->setSpacing(Style::near);
    for (QLabel* label : {static_cast<QLabel*>(lblTitle), lblProblem})
        label->setContentsMargins(Style::tight, 0, Style::tight, 0); // in line with the inputs
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Style::none);
    column->addWidget(lblTitle);
    column->addLayout(rowLayout); // beside the title, which names them to screen readers
    column->addWidget(lblProblem);
    column->addStretch(1);
    Style::followText(*lblProblem, &Style::alarm);
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
    painter.setPen(QPen(Style::alarm(palette()), Style::ring));
    painter.drawRoundedRect(QRectF(rowLayout->geometry()).adjusted(1, 1, -1, -1), Style::corner,
                            Style::corner);
}

} // namespace zel

#include "app/patients/PatientFieldGroup.h"

#include "app/patients/PatientFieldBox.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/Style.h"

#include <QGridLayout>

namespace zel {

PatientFieldGroup::PatientFieldGroup(const QString& title, QWidget* parent)
    : QFrame(parent), grid(new QGridLayout) {
    setFrameShape(QFrame::StyledPanel);
    setAccessibleName(title);
    auto* heading = new QLabel(title, this);
    Style::setType(*heading, Style::Type::heading);
    heading->setContentsMargins(Style::tight, 0, 0, 0); // in line with the captions
    grid->setHorizontalSpacing(Style::apart);
    grid->setVerticalSpacing(Style::near);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Style::apart, Style::apart, Style::apart, Style::apart);
    column->setSpacing(Style::near);
    column->addWidget(heading);
    column->addLayout(grid);
}

void PatientFieldGroup::add(PatientFieldBox* box, bool isWide) {
    box->setParent(this);
    places.push_back({box, isWide});
    arrange(1);
}

void PatientFieldGroup::addNote(QWidget* note) {
    note->setContentsMargins(Style::tight, 0, 0, 0);
    qobject_cast<QVBoxLayout*>(layout())->insertWidget(1, note);
}

void PatientFieldGroup::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    const int columns = width() >= fontMetrics().averageCharWidth() * 70 ? 2 : 1;
    if (columns != arranged) arrange(columns);
}

void PatientFieldGroup::arrange(int columns) {
    arranged = columns;
    int row = 0, column = 0;
    for (const auto& [box, isWide] : places) {
        const int span = isWide ? columns : 1;
        if (column + span > columns) {
            ++row;
            column = 0;
        }
        grid->addWidget(box, row, column, 1, span); // takes it from where it was
        column += span;
    }
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, columns - 1);
}

} // namespace zel

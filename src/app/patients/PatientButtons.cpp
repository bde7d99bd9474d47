#include "app/patients/PatientButtons.h"

#include "app/widgets/Mnemonic.h"
#include "app/widgets/Style.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>

namespace zel {

using namespace Qt::StringLiterals;

PatientButtons::PatientButtons(QWidget* parent) : QWidget(parent), row(new QHBoxLayout(this)) {
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Style::near);
    const auto* newButton =
        addButton(u"btnNewPatient"_s, qtTrId("newPatientButton"), qtTrId("newPatientHint"));
    deleteButton =
        addButton(u"btnDeletePatient"_s, qtTrId("deletePatientButton"), qtTrId("deletePatientHint"));
    row->addStretch(1);
    saveButton = addButton(u"btnSavePatient"_s, qtTrId("savePatientButton"), qtTrId("savePatientHint"));
    sendIDButton = addButton(u"btnSendID"_s, qtTrId("sendIDButton"), qtTrId("sendIDHint"));
    downloadButton = addButton(u"btnDataTransfer"_s, qtTrId("downloadButton"), qtTrId("downloadHint"));
    connect(newButton, &QPushButton::clicked, this, &PatientButtons::newWanted);
    connect(deleteButton, &QPushButton::clicked, this, &PatientButtons::deleteWanted);
    connect(saveButton, &QPushButton::clicked, this, &PatientButtons::saveWanted);
    connect(sendIDButton, &QPushButton::clicked, this, &PatientButtons::sendIDWanted);
    connect(downloadButton, &QPushButton::clicked, this, &PatientButtons::downloadWanted);
    press(Qt::Key_N, *newButton);
    press(Qt::Key_D, *downloadButton);
}

QPushButton* PatientButtons::addButton(const QString& name, const QString& text, const QString& hint) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setAccessibleName(withoutMnemonic(text));
    button->setToolTip(hint);
    row->addWidget(button);
    return button;
}

void PatientButtons::press(int key, const QPushButton& button) {
    connect(new QShortcut(QKeySequence(Qt::CTRL | key), this), &QShortcut::activated, &button,
            &QPushButton::click);
}

void PatientButtons::enable(const Allowed& allowed) {
    deleteButton->setEnabled(allowed.change);
    sendIDButton->setEnabled(allowed.sendID);
    downloadButton->setEnabled(allowed.download);
}

void PatientButtons::enableSave(bool enabled) {
    const bool hadFocus = saveButton->hasFocus();
    saveButton->setEnabled(enabled);
    if (hadFocus && !enabled) emit focusLost();
}

} // namespace zel

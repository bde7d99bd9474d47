#include "app/shell/KeysDialog.h"

#include "app/shell/KeyList.h"
#include "app/widgets/Mnemonic.h"
#include "app/widgets/ScreenFit.h"
#include "app/widgets/Style.h"
#include "app/widgets/TableLook.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

namespace {
enum KeyColumn { keyPlace, keyWhat, keyKeys, keyColumns };
}

KeysDialog::KeysDialog(QWidget* window) : QDialog(window), tblKeys(new QTableWidget(0, keyColumns, this)) {
    setObjectName(u"KeysDialog"_s);
    setWindowTitle(qtTrId("keysTitle"));
    setAccessibleName(qtTrId("keysTitle"));
    tblKeys->setObjectName(u"tblKeys"_s);
    tblKeys->setAccessibleName(qtTrId("keysTitle"));
    tblKeys->setHorizontalHeaderLabels({qtTrId("keysPlace"), qtTrId("keysWhat"), qtTrId("keysKey")});
    tblKeys->setEditTriggers(QAbstractItemView::NoEditTriggers);
    dressTable(*tblKeys);
    tblKeys->setSelectionMode(QAbstractItemView::SingleSelection);
    tblKeys->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    tblKeys->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tblKeys->horizontalHeader()->setSectionResizeMode(keyWhat, QHeaderView::Stretch);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Style::edge, Style::edge, Style::edge, Style::edge);
    column->setSpacing(Style::apart);
    column->addWidget(tblKeys, 1);
    column->addWidget(makeButtons());
    const int letter = fontMetrics().averageCharWidth();
    fitToScreen(*this, QSize(letter * 120, letter * 90));
}

/// The key that opens the list goes on to the manual, as help does elsewhere.
QWidget* KeysDialog::makeButtons() {
    auto* all = new QWidget(this);
    auto* row = new QHBoxLayout(all);
    row->setContentsMargins(0, 0, 0, 0);
    auto* manual = new QPushButton(qtTrId("menuManual"), all);
    manual->setObjectName(u"btnManual"_s);
    manual->setToolTip(qtTrId("keysManualHint"));
    manual->setShortcut(Qt::Key_F1);
    auto* close = new QPushButton(qtTrId("backupClose"), all);
    close->setObjectName(u"btnCloseKeys"_s);
    for (QPushButton* button : {manual, close})
        button->setAccessibleName(withoutMnemonic(button->text()));
    close->setDefault(true);
    row->addWidget(manual);
    row->addStretch(1);
    row->addWidget(close);
    connect(manual, &QPushButton::clicked, this, &KeysDialog::manualWanted);
    connect(close, &QPushButton::clicked, this, &KeysDialog::close);
    return all;
}

void KeysDialog::fill() {
    tblKeys->setRowCount(0);
    for (const KeyRow& row : keysOf(*parentWidget())) {
        const int at = tblKeys->rowCount();
        tblKeys->insertRow(at);
        tblKeys->setItem(at, keyPlace, new QTableWidgetItem(row.place));
        tblKeys->setItem(at, keyWhat, new QTableWidgetItem(row.what));
        tblKeys->setItem(at, keyKeys, new QTableWidgetItem(row.keys));
    }
    tblKeys->setCurrentCell(0, keyPlace);
}

void KeysDialog::showKeys() {
    fill();
    show();
    tblKeys->setFocus();
    activateWindow();
}

} // namespace zel

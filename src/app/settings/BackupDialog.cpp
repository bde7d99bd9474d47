#include "app/settings/BackupDialog.h"

#include "app/widgets/TableLook.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

enum BackupColumn { nameColumn, dayColumn, sizeColumn, columnCount };

QString kindText(BackupKind kind) {
    switch (kind) {
    case BackupKind::daily: return qtTrId("backupDaily");
    case BackupKind::made: return qtTrId("backupMade");
    case BackupKind::replaced: return qtTrId("backupReplaced");
    case BackupKind::damaged: return qtTrId("backupDamaged");
    }
    return {};
}

} // namespace

BackupDialog::BackupDialog(DataStore& dataStore, MessagePanel& messages, QWidget* parent)
    : QDialog(parent), store{dataStore}, panel{messages}, tblBackups{makeList()}, lblBackup{
                                                                                      new QLabel(this)} {
    setObjectName(u"BackupDialog"_s);
    setWindowTitle(qtTrId("backupTitle"));
    build();
}

void BackupDialog::build() {
    auto* explained = new QLabel(qtTrId("backupExplained").arg(store.backups().folder()), this);
    explained->setObjectName(u"lblBackups"_s);
    explained->setTextFormat(Qt::PlainText);
    explained->setWordWrap(true);
    lblBackup->setObjectName(u"lblBackup"_s);
    lblBackup->setTextFormat(Qt::PlainText);
    lblBackup->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 14, 16, 14);
    column->setSpacing(10);
    column->addWidget(explained);
    column->addWidget(tblBackups, 1);
    column->addWidget(lblBackup);
    column->addWidget(makeButtons());
    resize(fontMetrics().averageCharWidth() * 88, fontMetrics().height() * 24);
}

QTableWidget* BackupDialog::makeList() {
    auto* list = new QTableWidget(0, columnCount, this);
    list->setObjectName(u"tblBackups"_s);
    list->setAccessibleName(qtTrId("backupTitle"));
    list->setHorizontalHeaderLabels({qtTrId("backupKind"), qtTrId("backupDay"), qtTrId("backupSize")});
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    dressTable(*list);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    list->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->horizontalHeader()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
    connect(list, &QTableWidget::itemSelectionChanged, this, &BackupDialog::showChosen);
    return list;
}

QPushButton* BackupDialog::addButton(const char* name, const QString& text, void (BackupDialog::*pressed)()) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1StringView{name});
    button->setAccessibleName(button->text().remove(u'&'));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, pressed);
    return button;
}

QWidget* BackupDialog::makeButtons() {
    auto* all = new QWidget(this);
    auto* row = new QHBoxLayout(all);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(addButton("btnCreateBackup", qtTrId("backupCreate"), &BackupDialog::create));
    row->addStretch(1);
    btnRestore = addButton("btnRestoreBackup", qtTrId("backupRestore"), &BackupDialog::restore);
    row->addWidget(btnRestore);
    row->addWidget(addButton("btnCloseBackups", qtTrId("backupClose"), &BackupDialog::reject));
    return all;
}

void BackupDialog::showBackups() {
    fill({});
    open();
    tblBackups->setFocus();
}

void BackupDialog::fill(const QString& chosen) {
    const auto copies = store.backups().list();
    const QString pattern = std::as_const(store).getSetting().getDateFormat();
    const QSignalBlocker once(tblBackups); // what is chosen in the end is looked into, once
    tblBackups->setRowCount(static_cast<int>(copies.size()));
    for (int row = 0; const Backup& copy : copies) {
        auto* name = new QTableWidgetItem(kindText(copy.kind));
        name->setData(Qt::UserRole, copy.name);
        name->setToolTip(copy.name);
        tblBackups->setItem(row, nameColumn, name);
        tblBackups->setItem(row, dayColumn, new QTableWidgetItem(dayText(copy.day, pattern)));
        tblBackups->setItem(row, sizeColumn, new QTableWidgetItem(QLocale().formattedDataSize(copy.size)));
        if (row == 0 || copy.name == chosen) tblBackups->selectRow(row);
        ++row;
    }
    showChosen();
}

QString BackupDialog::chosenName() const {
    const auto selected = tblBackups->selectionModel()->selectedRows();
    return selected.empty() ? QString() : selected.first().data(Qt::UserRole).toString();
}

/// What is in a copy is read when it is looked at: all of them would take a moment with large files.
void BackupDialog::showChosen() {
    const QString name = chosenName();
    if (!btnRestore) return; // not built yet
    if (name.isEmpty()) {
        btnRestore->setEnabled(false);
        return lblBackup->setText(qtTrId("backupNone"));
    }
    const auto content = store.backups().content(name);
    btnRestore->setEnabled(content.has_value());
    const QString pattern = std::as_const(store).getSetting().getDateFormat();
    lblBackup->setText(name + u": "_s + (content ? describe(*content, pattern) : qtTrId("backupUnreadable")));
}

void BackupDialog::create() {
    const auto made = store.backups().create();
    if (!made) return panel.ShowMessage(describe(made.error()), qtTrId("Warning"));
    fill(*made);
}

void BackupDialog::restore() {
    const QString name = chosenName();
    if (!panel.AskToErase(qtTrId("backupConfirm").arg(lblBackup->text()), qtTrId("backupTitle"))) return;
    const auto kept = store.restoreBackup(name);
    if (!kept) return panel.ShowMessage(describe(kept.error()), qtTrId("Warning"));
    accept();
    emit restored(name, *kept);
}

} // namespace zel

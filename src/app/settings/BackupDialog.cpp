#include "app/settings/BackupDialog.h"

#include "app/widgets/Mnemonic.h"
#include "app/widgets/PatientTexts.h"
#include "app/widgets/ScreenFit.h"
#include "app/widgets/Style.h"
#include "app/widgets/TableLook.h"
#include "store/CopyContent.h"
#include "store/Languages.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
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

BackupDialog::BackupDialog(const Parts& needed, QWidget* parent)
    : QDialog(parent), store{needed.store}, panel{needed.panel}, chooser{needed.chooser},
      courier{needed.courier}, clock{needed.clock}, tblBackups{makeList()}, lblBackup{new QLabel(this)} {
    setObjectName(u"BackupDialog"_s);
    setWindowTitle(qtTrId("backupTitle"));
    build();
    connect(&courier, &BackupCourier::listed, this, &BackupDialog::takeFarCopies);
    connect(&courier, &BackupCourier::brought, &courier, &BackupCourier::look);
}

void BackupDialog::build() {
    auto* explained = new QLabel(qtTrId("backupExplained").arg(breakable(store.backups().folder())), this);
    explained->setObjectName(u"lblBackups"_s);
    explained->setTextFormat(Qt::PlainText);
    explained->setWordWrap(true);
    lblBackup->setObjectName(u"lblBackup"_s);
    lblBackup->setTextFormat(Qt::PlainText);
    lblBackup->setWordWrap(true);
    auto* body = new QWidget(this);
    auto* inside = new QVBoxLayout(body);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->setSpacing(Style::apart);
    inside->addWidget(explained);
    inside->addWidget(tblBackups, 1);
    takeWhatIsLeft(*tblBackups);
    inside->addWidget(lblBackup);
    inside->addWidget(makeSecondFolder());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Style::edge, Style::edge, Style::edge, Style::edge);
    column->setSpacing(Style::apart);
    column->addWidget(scrolling(u"backupScroll"_s, body, this), 1);
    column->addWidget(makeButtons());
    fitToScreen(*this, QSize(fontMetrics().averageCharWidth() * 88, fontMetrics().height() * 24));
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
    button->setAccessibleName(withoutMnemonic(button->text()));
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

QWidget* BackupDialog::makeSecondFolder() {
    auto* all = new QWidget(this);
    auto* row = new QHBoxLayout(all);
    row->setContentsMargins(0, 0, 0, 0);
    auto* words = new QLabel(qtTrId("backupAlsoTo"), this);
    words->setObjectName(u"lblSecondFolder"_s);
    edtSecondFolder = new QLineEdit(this); // a path of any length, to be scrolled and copied
    edtSecondFolder->setObjectName(u"edtSecondFolder"_s);
    edtSecondFolder->setAccessibleName(words->text().remove(u':'));
    Style::followPlaceholder(*edtSecondFolder);
    edtSecondFolder->setPlaceholderText(qtTrId("backupNoSecondFolder"));
    edtSecondFolder->setReadOnly(true);
    words->setBuddy(edtSecondFolder);
    row->addWidget(words);
    row->addWidget(edtSecondFolder, 1);
    row->addWidget(
        addButton("btnChooseSecondFolder", qtTrId("backupChoose"), &BackupDialog::chooseSecondFolder));
    btnStopSecondFolder =
        addButton("btnStopSecondFolder", qtTrId("backupStop"), &BackupDialog::stopSecondFolder);
    row->addWidget(btnStopSecondFolder);
    return all;
}

void BackupDialog::showSecondFolder() {
    const auto second = secondFolder(store.getZELXMLPath());
    const QString folder = second && *second ? (*second)->folder : QString();
    edtSecondFolder->setText(folder);
    edtSecondFolder->setToolTip(second ? folder : describe(second.error()));
    edtSecondFolder->setCursorPosition(0);
    btnStopSecondFolder->setEnabled(!folder.isEmpty());
}

void BackupDialog::chooseSecondFolder() {
    const QString folder = chooser.chooseFolder(this, qtTrId("backupChooseTitle"));
    if (!folder.isEmpty()) nameFolder(folder);
}

void BackupDialog::stopSecondFolder() { nameFolder({}); }

void BackupDialog::nameFolder(const QString& folder) {
    if (const auto named = nameSecondFolder(store.getZELXMLPath(), folder); !named)
        return panel.ShowMessage(describe(named.error()), qtTrId("Warning"));
    showSecondFolder();
    showFarCopies({}, {});
    courier.bring();
    courier.look();
}

/// They come when the folder has answered, and count if it is still the one that is named.
void BackupDialog::takeFarCopies(const SecondFolder& folder, const std::vector<Backup>& copies) {
    const auto now = secondFolder(store.getZELXMLPath());
    if (now && *now && (*now)->copies() == folder.copies()) showFarCopies(folder, copies);
}

/// Leaves what is chosen as it is.
void BackupDialog::showFarCopies(const SecondFolder& folder, const std::vector<Backup>& copies) {
    far = folder;
    farCopies = copies;
    if (!isVisible()) return;
    if (chosenName().contains(u'/')) return fill(chosenName());
    const QSignalBlocker unchanged(tblBackups);
    tblBackups->setRowCount(nearTotal);
    addFarRows(chosenName());
    if (nearTotal == 0) showChosen();
}

void BackupDialog::addFarRows(const QString& chosen) {
    for (const Backup& copy : farCopies)
        addRow(copy, far.path(copy.name), qtTrId("backupFar").arg(kindText(copy.kind)), chosen);
}

void BackupDialog::showBackups() {
    farCopies.clear();
    showSecondFolder();
    courier.look();
    fill({});
    open();
    tblBackups->setFocus();
}

void BackupDialog::fill(const QString& chosen) {
    const QSignalBlocker once(tblBackups); // what is chosen in the end is looked into, once
    tblBackups->setRowCount(0);
    for (const Backup& copy : store.backups().list())
        addRow(copy, copy.name, kindText(copy.kind), chosen);
    nearTotal = tblBackups->rowCount();
    addFarRows(chosen);
    showChosen();
}

/// \p path: what it is restored by, a name in the usual folder or a whole path.
void BackupDialog::addRow(const Backup& copy, const QString& path, const QString& kind,
                          const QString& chosen) {
    const QString pattern = std::as_const(store).getSetting().shownDateFormat();
    const int row = tblBackups->rowCount();
    tblBackups->insertRow(row);
    auto* name = new QTableWidgetItem(kind);
    name->setData(Qt::UserRole, path);
    name->setToolTip(path);
    tblBackups->setItem(row, nameColumn, name);
    tblBackups->setItem(row, dayColumn, new QTableWidgetItem(dayText(copy.day, pattern)));
    tblBackups->setItem(row, sizeColumn, new QTableWidgetItem(textLocale().formattedDataSize(copy.size)));
    if (row == 0 || path == chosen) tblBackups->selectRow(row);
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
    const bool isFar = name.contains(u'/');
    const QString shown = isFar ? qtTrId("backupFar").arg(QFileInfo(name).fileName()) : name;
    const auto content = isFar ? contentOfCopy(name) : store.backups().content(name);
    btnRestore->setEnabled(content.has_value());
    const QString pattern = std::as_const(store).getSetting().shownDateFormat();
    lblBackup->setText(
        qtTrId("infoLine").arg(shown, content ? describe(*content, pattern) : qtTrId("backupUnreadable")));
}

void BackupDialog::create() {
    const auto made = store.backups().create();
    if (!made) return panel.ShowMessage(describe(made.error()), qtTrId("Warning"));
    fill(*made);
}

/// A copy of the second folder becomes one of the usual folder first.
tl::expected<QString, StoreError> BackupDialog::nearName(const QString& name) const {
    if (!name.contains(u'/')) return name;
    return fetchCopy(store.backups().folder(), name,
                     std::chrono::floor<std::chrono::milliseconds>(clock.now()));
}

void BackupDialog::restore() {
    const QString chosen = chosenName(); // the lists may be filled anew while the question stands
    if (!panel.AskToErase(qtTrId("backupConfirm").arg(lblBackup->text()), qtTrId("backupTitle"))) return;
    const auto name = nearName(chosen);
    if (!name) return panel.ShowMessage(describe(name.error()), qtTrId("Warning"));
    const auto kept = store.restoreBackup(*name);
    if (!kept) return panel.ShowMessage(describe(kept.error()), qtTrId("Warning"));
    accept();
    emit restored(*name, *kept);
}

} // namespace zel

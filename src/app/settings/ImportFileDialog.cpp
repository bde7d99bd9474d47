#include "app/settings/ImportFileDialog.h"

#include "app/settings/XmlFileList.h"
#include "app/widgets/EmptyState.h"
#include "app/widgets/Mnemonic.h"
#include "app/widgets/Style.h"
#include "app/widgets/TableLook.h"

#include <QCheckBox>
#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyledItemDelegate>
#include <QTableView>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// A click anywhere in a row, or the space key, turns its box.
class RowSwitch final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem&,
                     const QModelIndex& index) override {
        if (!turns(*event)) return false;
        const QModelIndex box = index.siblingAtColumn(XmlFileList::name);
        const bool wasChosen = box.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        return model->setData(box, wasChosen ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    }

private:
    static bool turns(const QEvent& event) {
        if (event.type() == QEvent::MouseButtonRelease)
            return static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
        return event.type() == QEvent::KeyPress
               && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Space;
    }
};

} // namespace

ImportFileDialog::ImportFileDialog(FileChooser& chooser, const QString& first, QWidget* parent)
    : QDialog(parent), folders(chooser), files(new XmlFileList(this)), lblFolder(new QLabel(this)),
      btnFolder(new QPushButton(qtTrId("importFolderButton"), this)), tblFiles(new QTableView(this)),
      noFiles(new EmptyState(u"noFiles"_s, u":/icons/tableBtn.InactiveImg.svg"_s, this)),
      listOrAdvice(new QStackedWidget(this)), boxAll(new QCheckBox(qtTrId("importAll"), this)),
      btnImport(new QPushButton(this)), btnCancel(new QPushButton(qtTrId("cancel"), this)) {
    setObjectName(u"ImportFileDialog"_s);
    setWindowTitle(qtTrId("importTitle"));
    setAccessibleName(qtTrId("importTitle"));
    build();
    connect(btnFolder, &QPushButton::clicked, this, &ImportFileDialog::chooseFolder);
    connect(btnImport, &QPushButton::clicked, this, &ImportFileDialog::accept);
    connect(btnCancel, &QPushButton::clicked, this, &ImportFileDialog::reject);
    connect(boxAll, &QCheckBox::clicked, files, &XmlFileList::chooseAll);
    connect(files, &XmlFileList::chosenChanged, this, &ImportFileDialog::showChosen);
    setFolder(first);
}

void ImportFileDialog::build() {
    dressList();
    noFiles->setTexts(qtTrId("noFiles"), qtTrId("noFilesAdvice"));
    listOrAdvice->addWidget(tblFiles);
    listOrAdvice->addWidget(noFiles);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Style::edge, Style::edge, Style::edge, Style::edge);
    column->setSpacing(Style::apart);
    column->addLayout(makeFolderRow());
    column->addWidget(listOrAdvice, 1);
    column->addWidget(makeButtons());
    resize(fontMetrics().averageCharWidth() * 88, fontMetrics().height() * 24);
}

QHBoxLayout* ImportFileDialog::makeFolderRow() {
    lblFolder->setObjectName(u"lblFolder"_s);
    lblFolder->setTextFormat(Qt::PlainText);
    lblFolder->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    btnFolder->setObjectName(u"btnFolder"_s);
    btnFolder->setAccessibleName(qtTrId("importFolder"));
    auto* row = new QHBoxLayout;
    row->addWidget(lblFolder, 1);
    row->addWidget(btnFolder);
    return row;
}

QWidget* ImportFileDialog::makeButtons() {
    boxAll->setObjectName(u"boxAll"_s);
    boxAll->setAccessibleName(qtTrId("importAllFiles"));
    btnImport->setObjectName(u"btnImport"_s);
    btnImport->setDefault(true);
    btnCancel->setObjectName(u"btnCancelImport"_s);
    btnCancel->setAccessibleName(qtTrId("cancel"));
    auto* all = new QWidget(this);
    auto* row = new QHBoxLayout(all);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(boxAll);
    row->addStretch(1);
    row->addWidget(btnImport);
    row->addWidget(btnCancel);
    return all;
}

void ImportFileDialog::dressList() {
    tblFiles->setObjectName(u"tblFiles"_s);
    tblFiles->setAccessibleName(qtTrId("importList"));
    tblFiles->setModel(files);
    tblFiles->setItemDelegate(new RowSwitch(tblFiles));
    dressTable(*tblFiles);
    tblFiles->setSelectionMode(QAbstractItemView::SingleSelection);
    QHeaderView* columns = tblFiles->horizontalHeader();
    const int character = tblFiles->fontMetrics().averageCharWidth();
    for (const auto& [column, width] :
         {std::pair(XmlFileList::readings, 14), std::pair(XmlFileList::comments, 14),
          std::pair(XmlFileList::date, 18)}) {
        columns->setSectionResizeMode(column, QHeaderView::Fixed);
        columns->resizeSection(column, width * character);
    }
}

QStringList ImportFileDialog::chosenFiles() const { return files->chosenFiles(); }

void ImportFileDialog::chooseFolder() {
    const QString chosen = folders.chooseFolder(this, qtTrId("importFolder"));
    if (!chosen.isEmpty()) setFolder(chosen);
}

void ImportFileDialog::setFolder(const QString& path) {
    folder = path;
    files->setFolder(folder);
    const bool any = files->rowCount() > 0;
    listOrAdvice->setCurrentWidget(any ? static_cast<QWidget*>(tblFiles) : noFiles);
    boxAll->setEnabled(any);
    if (any) tblFiles->setCurrentIndex(files->index(0, XmlFileList::name));
    (any ? static_cast<QWidget*>(tblFiles) : btnFolder)->setFocus();
    showFolder();
}

/// The path's middle gives way, so that the folder's name stays to be seen.
void ImportFileDialog::showFolder() {
    const QString text = qtTrId("importFrom").arg(QDir::toNativeSeparators(folder));
    lblFolder->setText(lblFolder->fontMetrics().elidedText(text, Qt::ElideMiddle, lblFolder->width()));
    lblFolder->setToolTip(text);
    lblFolder->setAccessibleName(text);
}

void ImportFileDialog::showChosen() {
    const int chosen = static_cast<int>(files->chosenFiles().size());
    btnImport->setEnabled(chosen > 0);
    btnImport->setText(chosen > 0 ? qtTrId("importButtonFiles", chosen) : qtTrId("importButton"));
    btnImport->setAccessibleName(withoutMnemonic(btnImport->text()));
    boxAll->setChecked(chosen > 0 && chosen == files->rowCount());
}

void ImportFileDialog::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    showFolder();
}

} // namespace zel

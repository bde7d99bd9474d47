#include "app/settings/ImportFileDialog.h"

#include "app/settings/XmlFileList.h"
#include "app/widgets/EmptyState.h"
#include "app/widgets/Mnemonic.h"
#include "app/widgets/ScreenFit.h"
#include "app/widgets/SeenName.h"
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

#include <algorithm>

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

ImportFileDialog::ImportFileDialog(FileChooser& chooser, const QString& first, const ImportContext& context,
                                   QWidget* parent)
    : QDialog(parent), folders(chooser), files(new XmlFileList(context, this)), lblFolder(new QLabel(this)),
      lblRemark(new QLabel(this)), btnFolder(new QPushButton(qtTrId("importFolderButton"), this)),
      tblFiles(new QTableView(this)),
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
    context.files.isEmpty() ? setFolder(first) : setFiles(context);
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
    column->addWidget(lblRemark);
    column->addWidget(listOrAdvice, 1);
    column->addWidget(makeButtons());
    fitToScreen(*this, QSize(fontMetrics().averageCharWidth() * 136, fontMetrics().height() * 24));
}

QHBoxLayout* ImportFileDialog::makeFolderRow() {
    lblFolder->setObjectName(u"lblFolder"_s);
    lblFolder->setTextFormat(Qt::PlainText);
    lblFolder->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblRemark->setObjectName(u"lblRemark"_s);
    lblRemark->setTextFormat(Qt::PlainText);
    lblRemark->setWordWrap(true);
    lblRemark->hide();
    btnFolder->setObjectName(u"btnFolder"_s);
    nameAsSeen(*btnFolder, btnFolder->text(), qtTrId("importFolder"));
    auto* row = new QHBoxLayout;
    row->addWidget(lblFolder, 1);
    row->addWidget(btnFolder);
    return row;
}

QWidget* ImportFileDialog::makeButtons() {
    boxAll->setObjectName(u"boxAll"_s);
    nameAsSeen(*boxAll, boxAll->text(), qtTrId("importAllFiles"));
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
    constexpr int padding =
        Style::wide; // of a title, both sides, and the bold type that some desktops give it
    for (const auto& [column, width] : {std::pair(XmlFileList::readings, 12),
                                        {XmlFileList::comments, 12},
                                        {XmlFileList::date, 19},
                                        {XmlFileList::state, 24}}) {
        const QString title = files->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        const int needed = columns->fontMetrics().horizontalAdvance(title) + padding;
        columns->setSectionResizeMode(column, QHeaderView::Fixed);
        columns->resizeSection(column, std::max(width * character, needed));
    }
}

QStringList ImportFileDialog::chosenFiles() const { return files->chosenFiles(); }

void ImportFileDialog::chooseFolder() {
    const QString chosen = folders.chooseFolder(this, qtTrId("importFolder"));
    if (!chosen.isEmpty()) setFolder(chosen);
}

void ImportFileDialog::setFolder(const QString& path) {
    folder = path;
    lblRemark->hide();
    files->setFolder(folder);
    beginList();
}

void ImportFileDialog::setFiles(const ImportContext& context) {
    lblRemark->setText(context.remark);
    lblRemark->setVisible(!context.remark.isEmpty());
    files->setFiles(context.files);
    beginList();
}

void ImportFileDialog::beginList() {
    const bool any = files->rowCount() > 0;
    listOrAdvice->setCurrentWidget(any ? static_cast<QWidget*>(tblFiles) : noFiles);
    if (any) tblFiles->setCurrentIndex(files->index(0, XmlFileList::name));
    (any ? static_cast<QWidget*>(tblFiles) : btnFolder)->setFocus();
    showFolder();
}

/// The path's middle gives way, so that the folder's name stays to be seen.
void ImportFileDialog::showFolder() {
    const QString text = folder.isEmpty() ? qtTrId("importDropped")
                                          : qtTrId("importFrom").arg(QDir::toNativeSeparators(folder));
    lblFolder->setText(lblFolder->fontMetrics().elidedText(text, Qt::ElideMiddle, lblFolder->width()));
    lblFolder->setToolTip(text);
    lblFolder->setAccessibleName(text);
}

void ImportFileDialog::showChosen() {
    const int chosen = static_cast<int>(files->chosenFiles().size());
    btnImport->setEnabled(chosen > 0);
    btnImport->setText(chosen > 0 ? qtTrId("importButtonFiles", chosen) : qtTrId("importButton"));
    btnImport->setAccessibleName(withoutMnemonic(btnImport->text()));
    boxAll->setEnabled(files->isAnyForAll());
    boxAll->setChecked(files->isAnyForAll() && files->areAllChosen());
}

void ImportFileDialog::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    showFolder();
}

} // namespace zel

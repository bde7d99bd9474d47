#include "app/settings/XmlFileList.h"

#include <QDir>

namespace zel {

using namespace Qt::StringLiterals;

XmlFileList::XmlFileList(QObject* parent) : QAbstractTableModel(parent) {}

void XmlFileList::setFolder(const QString& folder) {
    reader.reset();
    beginResetModel();
    rows.clear();
    QStringList paths;
    const QDir files(folder, {}, QDir::Name | QDir::IgnoreCase | QDir::LocaleAware,
                     QDir::Files | QDir::Readable);
    for (const QFileInfo& file : files.entryInfoList()) {
        if (!file.fileName().endsWith(".xml"_L1)) continue; // in this case, as everywhere in the program
        paths += file.filePath();
        rows.push_back(
            {.file = {.FullPath = file.filePath(), .sFileName = file.fileName(), .backupTime = {}}});
    }
    endResetModel();
    emit chosenChanged();
    read(paths);
}

void XmlFileList::read(const QStringList& paths) {
    reading = true;
    reader = std::make_unique<Reader>();
    reader->thread = std::jthread([this, &calls = reader->calls, paths](const std::stop_token& stop) {
        for (int row = 0; row < paths.size() && !stop.stop_requested(); ++row)
            calls.post([this, row, file = XmlFile::read(paths.at(row))] { fileRead(row, file); });
        calls.post([this] {
            reading = false;
            emit allRead();
        });
    });
}

void XmlFileList::fileRead(int row, const XmlFile& file) {
    Row& changed = rows.at(static_cast<std::size_t>(row));
    changed.file = file;
    changed.isRead = true;
    emit dataChanged(index(row, 0), index(row, columnTotal - 1));
}

void XmlFileList::chooseAll(bool chosen) {
    if (rows.empty()) return;
    for (Row& row : rows)
        row.isChosen = chosen;
    emit dataChanged(index(0, name), index(rowCount() - 1, name), {Qt::CheckStateRole});
    emit chosenChanged();
}

QStringList XmlFileList::chosenFiles() const {
    QStringList paths;
    for (const Row& row : rows)
        if (row.isChosen) paths += row.file.FullPath;
    return paths;
}

int XmlFileList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int XmlFileList::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columnTotal; }

QVariant XmlFileList::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const Row& row = rows.at(static_cast<std::size_t>(index.row()));
    const auto column = static_cast<Column>(index.column());
    if (role == Qt::DisplayRole) return text(row, column);
    if (role == Qt::CheckStateRole && column == name) return row.isChosen ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::ToolTipRole) return column == name ? row.file.FullPath : text(row, column);
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter
                        | (column == name || column == date ? Qt::AlignLeft : Qt::AlignRight));
    return {};
}

bool XmlFileList::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::CheckStateRole) return false;
    rows.at(static_cast<std::size_t>(index.row())).isChosen = value.toInt() == Qt::Checked;
    emit dataChanged(index, index, {role});
    emit chosenChanged();
    return true;
}

QString XmlFileList::text(const Row& row, Column column) const {
    if (column == name) return row.file.sFileName;
    if (!row.isRead) return column == date ? qtTrId("fileBeingRead") : QString();
    if (row.file.isLarge) return column == date ? qtTrId("fileTooLargeToCount") : QString();
    if (!row.file.isRead()) return column == date ? qtTrId("fileNotReadable") : QString();
    if (column == readings) return QString::number(row.file.measureRec);
    return column == comments ? QString::number(row.file.comment) : row.file.backupTime;
}

QVariant XmlFileList::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter
                        | (section == name || section == date ? Qt::AlignLeft : Qt::AlignRight));
    if (role != Qt::DisplayRole) return {};
    switch (static_cast<Column>(section)) {
    case name: return qtTrId("columnFile");
    case readings: return qtTrId("columnReadings");
    case comments: return qtTrId("columnComments");
    case date: return qtTrId("columnDate");
    case columnTotal: break;
    }
    return {};
}

Qt::ItemFlags XmlFileList::flags(const QModelIndex& index) const {
    const Qt::ItemFlags all = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    return index.column() == name ? all | Qt::ItemIsUserCheckable : all;
}

} // namespace zel

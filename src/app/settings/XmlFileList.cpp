#include "app/settings/XmlFileList.h"

#include "app/widgets/PatientTexts.h"

#include <QDate>
#include <QDir>

#include <algorithm>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QVariant alignmentOf(int column) {
    const bool isNumber = column == XmlFileList::readings || column == XmlFileList::comments;
    return QVariant(Qt::AlignVCenter | (isNumber ? Qt::AlignRight : Qt::AlignLeft));
}

} // namespace

XmlFileList::XmlFileList(ImportContext known, QObject* parent)
    : QAbstractTableModel(parent), context(std::move(known)) {}

void XmlFileList::setFolder(const QString& folder) {
    QStringList paths;
    const QDir files(folder, {}, QDir::Name | QDir::IgnoreCase | QDir::LocaleAware,
                     QDir::Files | QDir::Readable);
    for (const QFileInfo& file : files.entryInfoList()) {
        if (!file.fileName().endsWith(".xml"_L1)) continue; // in this case, as everywhere in the program
        paths += file.filePath();
    }
    list(paths, false);
}

void XmlFileList::setFiles(const QStringList& paths) { list(paths, true); }

void XmlFileList::list(const QStringList& paths, bool chosen) {
    reader.reset();
    beginResetModel();
    rows.clear();
    for (const QString& path : paths)
        rows.push_back({.file = {.FullPath = path, .sFileName = path.section(u'/', -1), .backupTime = {}},
                        .isAwaited = chosen});
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
    changed.isHere = std::ranges::any_of(file.IDs, context.isKnown);
    // What was chosen before this was known was not chosen knowing it.
    changed.isChosen = (changed.isChosen || changed.isAwaited) && changed.isForAll();
    changed.isAwaited = false;
    emit dataChanged(index(row, 0), index(row, columnTotal - 1));
    emit chosenChanged();
}

void XmlFileList::chooseAll(bool chosen) {
    if (rows.empty()) return;
    for (Row& row : rows) {
        row.isChosen = chosen && row.isRead && row.isForAll();
        row.isAwaited = chosen && !row.isRead;
    }
    emit dataChanged(index(0, name), index(rowCount() - 1, name), {Qt::CheckStateRole});
    emit chosenChanged();
}

bool XmlFileList::isAnyForAll() const { return std::ranges::any_of(rows, &Row::isForAll); }

bool XmlFileList::areAllChosen() const {
    return std::ranges::all_of(
        rows, [](const Row& row) { return row.isChosen || row.isAwaited || !row.isForAll(); });
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
    if (role == Qt::CheckStateRole && column == name && !row.file.fault)
        return row.isChosen ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::ToolTipRole) return hint(row, text(row, column), column);
    if (role == Qt::TextAlignmentRole) return alignmentOf(column);
    return {};
}

bool XmlFileList::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::CheckStateRole) return false;
    Row& row = rows.at(static_cast<std::size_t>(index.row()));
    if (row.file.fault) return false;
    row.isChosen = value.toInt() == Qt::Checked;
    row.isAwaited = false;
    emit dataChanged(index, index, {role});
    emit chosenChanged();
    return true;
}

QString XmlFileList::text(const Row& row, Column column) const {
    if (column == name) return row.file.sFileName;
    if (column == state) return stateOf(row);
    if (!row.file.isRead()) return {};
    switch (column) {
    case patients: return row.file.patients.join(qtTrId("; "));
    case readings: return QString::number(row.file.measureRec);
    case comments: return QString::number(row.file.comment);
    default: return dayOf(row.file);
    }
}

QString XmlFileList::dayOf(const XmlFile& file) const {
    return QDate::fromString(file.backupTime, u"yyyy/MM/dd"_s).toString(context.dateFormat);
}

QString XmlFileList::stateOf(const Row& row) {
    if (!row.isRead) return qtTrId("fileBeingRead");
    if (row.file.fault)
        return row.file.fault->code == ImportRefusalCode::notReadable ? qtTrId("fileNotReadable")
                                                                      : qtTrId("fileNotImportable");
    if (row.file.isLarge) return qtTrId("fileTooLargeToCount");
    return row.isHere ? qtTrId("fileAlreadyHere") : QString();
}

/// A file's reasons are longer than a cell, and no name is markup.
QString XmlFileList::hint(const Row& row, const QString& text, Column column) {
    constexpr int longest = 1000;
    const QString words = column == name                      ? row.file.FullPath
                          : column == state && row.file.fault ? describe(*row.file.fault)
                          : column == state && row.isHere     ? qtTrId("fileAlreadyHereHint")
                                                              : text;
    if (words.isEmpty()) return {};
    return u"<span>"_s + shortText(words, longest).toHtmlEscaped() + u"</span>"_s;
}

QVariant XmlFileList::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return alignmentOf(section);
    if (role != Qt::DisplayRole) return {};
    switch (static_cast<Column>(section)) {
    case name: return qtTrId("columnFile");
    case readings: return qtTrId("columnReadings");
    case comments: return qtTrId("columnComments");
    case date: return qtTrId("columnDate");
    case patients: return qtTrId("columnPatient");
    case state: return qtTrId("columnState");
    case columnTotal: break;
    }
    return {};
}

Qt::ItemFlags XmlFileList::flags(const QModelIndex& index) const {
    const Qt::ItemFlags all = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    const bool hasBox = index.isValid() && index.column() == name
                        && !rows.at(static_cast<std::size_t>(index.row())).file.fault;
    return hasBox ? all | Qt::ItemIsUserCheckable : all;
}

} // namespace zel

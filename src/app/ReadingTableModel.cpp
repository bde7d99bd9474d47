#include "app/ReadingTableModel.h"

#include "store/RecordXml.h"

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QString dot(bool shown) { return shown ? u"\u25CF"_s : QString(); }

/// Filled for a finding, an outline for none, nothing where the model cannot tell.
QString findingMark(std::uint32_t arrhythmia) {
    if (arrhythmia == 1 || arrhythmia == 4) return u"\u25CB"_s;
    return dot(arrhythmia == 2 || arrhythmia == 5);
}

} // namespace

ReadingTableModel::ReadingTableModel(const DataStore& readings, QObject* parent)
    : QAbstractTableModel(parent), store(readings) {
    reload();
}

void ReadingTableModel::reload() {
    beginResetModel();
    const ReadingList& list = store.getReadingForCurID();
    rows.clear();
    rows.reserve(list.size());
    anyAFib = anyPad = false;
    for (const ReadingModel& reading : list) {
        rows.push_back(&reading);
        anyAFib = anyAFib || reading.isAFib();
        anyPad = anyPad || reading.isPad();
    }
    std::ranges::stable_sort(rows, {}, &ReadingModel::ReadingDate);
    endResetModel();
}

int ReadingTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int ReadingTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columnTotal;
}

QVariant ReadingTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const ReadingModel& reading = *rows.at(static_cast<std::size_t>(index.row()));
    const auto column = static_cast<Column>(index.column());
    if (role == Qt::DisplayRole) return text(reading, column);
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter | (column <= time ? Qt::AlignLeft : Qt::AlignHCenter));
    if (role == Qt::AccessibleTextRole && column == mam) return reading.getMamStr();
    if (role == Qt::AccessibleTextRole && column == mark) return reading.getPadStr();
    return {};
}

QString ReadingTableModel::text(const ReadingModel& reading, Column column) const {
    switch (column) {
    case date: return reading.strDisplayDate(store.getSetting());
    case time: return reading.strDisplayTime(store.getSetting());
    case sys: return toDecimal(reading.sys);
    case dia: return toDecimal(reading.dia);
    case pulse: return toDecimal(reading.pulse);
    case mapOrPP: return toDecimal(store.getSetting().showPPorMap == 0 ? reading.pp : reading.map);
    case mam: return dot(reading.mam == 1);
    case mark: return findingMark(reading.Arrhythmia);
    case columnTotal: break;
    }
    return {};
}

QVariant ReadingTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter | (section <= time ? Qt::AlignLeft : Qt::AlignHCenter));
    if (role != Qt::DisplayRole) return {};
    switch (static_cast<Column>(section)) {
    case date: return qtTrId("columnDate");
    case time: return qtTrId("columnTime");
    case sys: return qtTrId("columnSys");
    case dia: return qtTrId("columnDia");
    case pulse: return qtTrId("columnPulse");
    case mapOrPP: return store.getSetting().showPPorMap == 0 ? qtTrId("pp") : qtTrId("map");
    case mam: return qtTrId("columnMam");
    case mark: return markTitle;
    case columnTotal: break;
    }
    return {};
}

void ReadingTableModel::setMarkTitle(const QString& title) {
    markTitle = title;
    emit headerDataChanged(Qt::Horizontal, mark, mark);
}

void ReadingTableModel::refreshTexts() {
    emit headerDataChanged(Qt::Horizontal, 0, columnTotal - 1);
    if (!rows.empty()) emit dataChanged(index(0, 0), index(rowCount() - 1, columnTotal - 1));
}

} // namespace zel

#include "app/table/ReadingTableModel.h"

#include "analysis/HighValues.h"
#include "store/ManualReading.h"
#include "store/RecordXml.h"

#include <QStringList>

#include <algorithm>
#include <numeric>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// The reading with what the list knows of its row.
ReadingModel shownReading(const ReadingRow& row) {
    ReadingModel copy = row.isNA() ? ReadingModel::initNA(row.ReadingDate) : *row.reading;
    copy.day = row.day;
    copy.comment = row.comment;
    copy.bAtBegin = row.bAtBegin;
    copy.bAtEnd = row.bAtEnd;
    copy.bDrawTopLine = row.bDrawTopLine;
    copy.bYellowBackground = row.bYellowBackground;
    return copy;
}

/// None where the monitor's model cannot tell, 0 for no finding.
std::optional<std::int64_t> findingOf(const ReadingModel& reading) {
    switch (reading.Arrhythmia) {
    case 1:
    case 4: return 0;
    case 2:
    case 5: return 1;
    default: return std::nullopt;
    }
}

QString oneLine(const QString& text) { return text.simplified(); }

} // namespace

ReadingTableModel::ReadingTableModel(const DataStore& readings, QObject* parent)
    : QAbstractTableModel(parent), store(readings) {
    const auto forget = [this] { isCopied = false; };
    connect(&store, &DataStore::reloaded, this, forget);
    connect(&store, &DataStore::currentIDChanged, this, forget);
}

void ReadingTableModel::copyRecords() {
    readings = store.getReadingForCurID();
    for (ReadingModel& reading : readings)
        reading.comment = nullptr; // the store's own, which goes with the next load
    comments.clear();
    comments.reserve(store.getCommentForCurID().size());
    for (const auto& each : store.getCommentForCurID())
        comments.push_back(std::make_unique<CommentModel>(*each));
    isCopied = true;
}

void ReadingTableModel::reload(const ReadingSelection& selection) {
    beginResetModel();
    if (!isCopied) copyRecords();
    ReadingRows list =
        assembleReadingRows({readings, comments, store.getTrasferLogForCurID(), selection}, LocalZone());
    rows = std::move(list.rows);
    anyAFib = list.isAFib;
    anyPad = list.isPad;
    cut = describeCut(list);
    putInOrder();
    endResetModel();
}

SortKeys ReadingTableModel::keys() const {
    using Key = std::optional<std::int64_t>;
    switch (static_cast<Column>(sortedBy)) {
    case time:
        return keysOf(
            rows, [](const ReadingModel& each) { return each.isUndated() ? Key() : Key(each.minuteOfDay); });
    case sys: return keysOf(rows, [](const ReadingModel& each) { return Key(each.sys); });
    case dia: return keysOf(rows, [](const ReadingModel& each) { return Key(each.dia); });
    case pulse: return keysOf(rows, [](const ReadingModel& each) { return Key(each.pulse); });
    case mapOrPP:
        if (store.getSetting().showPPorMap == 0)
            return keysOf(rows, [](const ReadingModel& each) { return Key(each.pp); });
        return keysOf(rows, [](const ReadingModel& each) { return Key(each.map); });
    case mam: return keysOf(rows, [](const ReadingModel& each) { return Key(each.mam == 1 ? 1 : 0); });
    case mark: return keysOf(rows, findingOf);
    default: break;
    }
    std::vector<QString> texts;
    texts.reserve(rows.size());
    for (const ReadingRow& each : rows)
        texts.push_back(text(shownReading(each), comment));
    return keysOf(texts);
}

void ReadingTableModel::putInOrder() {
    if (sortedBy != date) {
        places = placesInOrder(keys(), order == Qt::DescendingOrder);
        return;
    }
    places.resize(rows.size());
    std::iota(places.begin(), places.end(), 0);
    if (order == Qt::DescendingOrder) std::ranges::reverse(places);
}

void ReadingTableModel::sort(int column, Qt::SortOrder wanted) {
    if (column < 0 || column >= columnTotal || (column == sortedBy && wanted == order)) return;
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<int> before = places;
    sortedBy = column;
    order = wanted;
    putInOrder();
    std::vector<int> shown(places.size()); // where each of the rows is shown now
    for (std::size_t number = 0; number < places.size(); ++number)
        shown[static_cast<std::size_t>(places[number])] = static_cast<int>(number);
    const QModelIndexList kept = persistentIndexList();
    QModelIndexList moved;
    moved.reserve(kept.size());
    for (const QModelIndex& each : kept) {
        const int place = before[static_cast<std::size_t>(each.row())];
        moved += index(shown[static_cast<std::size_t>(place)], each.column());
    }
    changePersistentIndexList(kept, moved);
    emit layoutChanged({}, VerticalSortHint);
}

int ReadingTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int ReadingTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columnTotal;
}

ReadingModel ReadingTableModel::row(int number) const { return shownReading(rowAt(number)); }

const ReadingRow& ReadingTableModel::rowAt(int number) const {
    return rows.at(static_cast<std::size_t>(places.at(static_cast<std::size_t>(number))));
}

bool ReadingTableModel::beginsComment(int number) const {
    return rowAt(number).comment && (number == 0 || rowAt(number - 1).comment != rowAt(number).comment);
}

bool ReadingTableModel::endsComment(int number) const {
    return rowAt(number).comment
           && (number + 1 == rowCount() || rowAt(number + 1).comment != rowAt(number).comment);
}

bool ReadingTableModel::beginsDay(int number) const {
    return sortedBy == date && number > 0 && rowAt(number).day != rowAt(number - 1).day;
}

QVariant ReadingTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const ReadingModel reading = row(index.row());
    const auto column = static_cast<Column>(index.column());
    if (role == Qt::DisplayRole) return text(reading, column);
    if (role == Qt::AccessibleTextRole) return spoken(index);
    if (role == Qt::ToolTipRole) return toolTip(reading, column);
    return {};
}

/// The remark for the whole row, and the whole comment in its column.
QString ReadingTableModel::toolTip(const ReadingModel& reading, Column column) {
    QStringList lines{describeRemark(reading)};
    if (column == comment && reading.comment) lines += reading.comment->comment;
    lines.removeAll(QString());
    return lines.join(u'\n');
}

QString ReadingTableModel::commentText(const ReadingModel& reading) {
    return reading.comment ? oneLine(reading.comment->comment) : QString();
}

/// Nothing for circles and placeholders, which are drawn.
QString ReadingTableModel::text(const ReadingModel& reading, Column column) const {
    if (column == date)
        return reading.isNA ? dayText(reading.day, store.getSetting().getDateFormat())
                            : reading.strDisplayDate(store.getSetting());
    if (column == comment) {
        QStringList parts{describeRemark(reading), commentText(reading)};
        parts.removeAll(QString());
        return parts.join(u" · "_s);
    }
    if (reading.isNA) return {};
    switch (column) {
    case time: return reading.strDisplayTime(store.getSetting());
    case sys: return toDecimal(reading.sys);
    case dia: return toDecimal(reading.dia);
    case pulse: return toDecimal(reading.pulse);
    case mapOrPP: return toDecimal(store.getSetting().showPPorMap == 0 ? reading.pp : reading.map);
    default: return {};
    }
}

bool ReadingTableModel::isHigh(const QModelIndex& index) const {
    const ReadingModel reading = row(index.row());
    if (reading.isNA) return false;
    const LimitPair limits = store.viewLimits().limits();
    if (index.column() == sys) return isSysHigh(reading, limits);
    return index.column() == dia && isDiaHigh(reading, limits);
}

QString ReadingTableModel::words(const QModelIndex& index) const {
    const ReadingModel reading = row(index.row());
    switch (static_cast<Column>(index.column())) {
    case date:
    case comment: break;
    case mam: return reading.isNA ? qtTrId("noValue") : reading.strDisplayMam();
    case mark: return reading.isNA ? qtTrId("noValue") : reading.strDisplayPad();
    default:
        if (reading.isNA) return qtTrId("noValue");
    }
    return text(reading, static_cast<Column>(index.column()));
}

QString ReadingTableModel::spoken(const QModelIndex& index) const {
    const ReadingModel reading = row(index.row());
    if (index.column() == date && reading.isNA) return qtTrId("dayWithoutReading").arg(words(index));
    const QString said = words(index);
    if (index.column() == comment) return said.isEmpty() ? qtTrId("none") : said;
    if (index.column() != date) return isHigh(index) ? qtTrId("valueHigh").arg(said) : said;
    const QString day = reading.bYellowBackground ? qtTrId("dayOfDownload").arg(said) : said;
    const QString remark = describeRemark(reading);
    return remark.isEmpty() ? day : qtTrId("cellWithRemark").arg(day, remark);
}

QVariant ReadingTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter
                        | (section <= time || section == comment ? Qt::AlignLeft : Qt::AlignHCenter));
    if (role != Qt::DisplayRole) return {};
    switch (static_cast<Column>(section)) {
    case date: return qtTrId("columnDate");
    case time: return qtTrId("columnTime");
    case sys: return qtTrId("columnSys");
    case dia: return qtTrId("columnDia");
    case pulse: return qtTrId("columnPulse");
    case mapOrPP:
        return qtTrId("columnPressure")
            .arg(store.getSetting().showPPorMap == 0 ? qtTrId("pp") : qtTrId("map"));
    case mam: return qtTrId("columnMam");
    case mark: return markTitle;
    case comment: return qtTrId("columnComment");
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

QString tabSeparated(const ReadingTableModel& model, const std::vector<int>& rows,
                     const std::vector<int>& columns) {
    QString lines;
    QStringList cells;
    for (const int column : columns)
        cells += oneLine(model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    lines += cells.join(u'\t') + u'\n';
    for (const int row : rows) {
        cells.clear();
        for (const int column : columns)
            cells += model.words(model.index(row, column));
        lines += cells.join(u'\t') + u'\n';
    }
    return lines;
}

} // namespace zel

#include "app/table/ReadingColumns.h"

#include "app/table/ReadingTableModel.h"
#include "app/widgets/Style.h"

#include <QAction>
#include <QHeaderView>
#include <QJsonArray>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTableView>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int cellPadding = 2 * Style::near + Style::tight; ///< both sides
constexpr double widestColumn = 200;                        ///< letters
constexpr int sharing = ReadingTableModel::comment; ///< the columns before it, which has what they leave

/// As they are remembered, whatever a column is called in the language.
constexpr std::array columnNames{"date"_L1,    "time"_L1, "sys"_L1,  "dia"_L1,    "pulse"_L1,
                                 "mapOrPP"_L1, "mam"_L1,  "mark"_L1, "comment"_L1};
static_assert(columnNames.size() == ReadingTableModel::columnTotal);

QLatin1StringView nameOf(int column) { return columnNames.at(static_cast<std::size_t>(column)); }

/// -1 for none.
int columnNamed(const QJsonValue& name) {
    const auto* found =
        std::ranges::find_if(columnNames, [text = name.toString()](auto each) { return text == each; });
    return found == columnNames.end() ? -1 : static_cast<int>(found - columnNames.begin());
}

} // namespace

ReadingColumns::ReadingColumns(QTableView& readings)
    : QObject(&readings), table(readings), header(*readings.horizontalHeader()) {
    dress();
    connect(&header, &QHeaderView::sectionResized, this, &ReadingColumns::noteWidth);
    connect(&header, &QHeaderView::sortIndicatorChanged, this, &ReadingColumns::sorted);
    auto* usual = new QAction(qtTrId("usualColumns"), &table);
    usual->setObjectName(u"usualColumns"_s);
    connect(usual, &QAction::triggered, this, &ReadingColumns::reset);
    header.addAction(usual);
    header.setContextMenuPolicy(Qt::ActionsContextMenu);
}

void ReadingColumns::sortByDateInsteadOf(int column) {
    if (header.sortIndicatorSection() == column)
        table.sortByColumn(ReadingTableModel::date, Qt::AscendingOrder);
}

void ReadingColumns::dress() {
    header.setSectionResizeMode(QHeaderView::Interactive);
    header.setSectionResizeMode(ReadingTableModel::comment, QHeaderView::Stretch);
    header.setMinimumSectionSize(table.fontMetrics().averageCharWidth() * 8);
    header.setSectionsMovable(true);
    header.setSortIndicator(ReadingTableModel::date, Qt::AscendingOrder);
    table.setSortingEnabled(true);
}

double ReadingColumns::letter() const { return QFontMetricsF(table.font()).averageCharWidth(); }

/// No narrower than their texts, and the arrow that shows the order.
std::vector<int> ReadingColumns::leastWidths() const {
    const QFontMetrics metrics = table.fontMetrics();
    std::vector<int> widths(sharing, metrics.horizontalAdvance(u"00000"_s) + cellPadding);
    widths[ReadingTableModel::date] = metrics.horizontalAdvance(u"00/00/0000"_s) + cellPadding;
    for (const QString& time : {qtTrId("%1 A"), qtTrId("%1 P")})
        widths[ReadingTableModel::time] = std::max(
            widths[ReadingTableModel::time], metrics.horizontalAdvance(time.arg(u"00:00"_s)) + cellPadding);
    for (int column = 0; column < sharing; ++column) {
        const QString title = table.model()->headerData(column, Qt::Horizontal).toString();
        int& width = widths[static_cast<std::size_t>(column)];
        width = std::max(width, metrics.size(0, title).width() + cellPadding);
    }
    return widths;
}

/// In a wide table the comments begin beyond the middle, where a day without a reading has its "n.a.".
void ReadingColumns::layOut() {
    if (isSized) return;
    const QScopedValueRollback byProgram(isLayingOut, true);
    const std::vector<int> widths = leastWidths();
    int total = 0;
    for (int column = 0; column < sharing; ++column)
        if (!table.isColumnHidden(column)) total += widths[static_cast<std::size_t>(column)];
    const int wanted = std::max(total, table.width() / 2);
    for (int column = 0; column < sharing; ++column)
        table.setColumnWidth(column, widths[static_cast<std::size_t>(column)] * wanted / total);
}

/// A column that comes or goes is no other width.
void ReadingColumns::noteWidth(int column, int before, int now) {
    if (!isLayingOut && column < sharing && before > 0 && now > 0) isSized = true;
}

void ReadingColumns::putInOrder(const std::vector<int>& columns) {
    for (int place = 0; place < static_cast<int>(columns.size()); ++place)
        header.moveSection(header.visualIndex(columns[static_cast<std::size_t>(place)]), place);
}

void ReadingColumns::reset() {
    std::vector<int> usual(ReadingTableModel::columnTotal);
    std::iota(usual.begin(), usual.end(), 0);
    putInOrder(usual);
    isSized = false;
    layOut();
    table.sortByColumn(ReadingTableModel::date, Qt::AscendingOrder);
}

QJsonObject ReadingColumns::widths() const {
    QJsonObject letters;
    for (int column = 0; column < sharing; ++column)
        if (!header.isSectionHidden(column))
            letters[nameOf(column)] = std::round(header.sectionSize(column) / letter() * 100) / 100;
    return letters;
}

QJsonObject ReadingColumns::state() const {
    QJsonObject state;
    QJsonArray order;
    bool isMoved = false;
    for (int place = 0; place < header.count(); ++place) {
        order.append(nameOf(header.logicalIndex(place)));
        isMoved = isMoved || header.logicalIndex(place) != place;
    }
    if (isMoved) state[u"order"_s] = order;
    if (isSized) state[u"letters"_s] = widths();
    const bool isDescending = header.sortIndicatorOrder() == Qt::DescendingOrder;
    if (header.sortIndicatorSection() != ReadingTableModel::date || isDescending) {
        state[u"sortedBy"_s] = nameOf(header.sortIndicatorSection());
        state[u"descending"_s] = isDescending;
    }
    return state;
}

void ReadingColumns::setWidths(const QJsonObject& letters) {
    const std::vector<int> least = leastWidths();
    for (int column = 0; column < sharing; ++column) {
        const double count = letters[nameOf(column)].toDouble();
        const bool isUsable = count > 0 && count <= widestColumn;
        const int width = isUsable ? static_cast<int>(std::lround(count * letter()))
                                   : least[static_cast<std::size_t>(column)];
        table.setColumnWidth(column, std::max(width, header.minimumSectionSize()));
    }
    isSized = true;
}

void ReadingColumns::restore(const QJsonObject& state) {
    reset();
    std::vector<int> order;
    for (const QJsonValue name : state[u"order"_s].toArray()) {
        const int column = columnNamed(name);
        if (column >= 0 && !std::ranges::count(order, column)) order.push_back(column);
    }
    putInOrder(order);
    if (const QJsonObject letters = state[u"letters"_s].toObject(); !letters.isEmpty()) setWidths(letters);
    const int column = columnNamed(state[u"sortedBy"_s]);
    if (column < 0) return;
    table.sortByColumn(column, state[u"descending"_s].toBool() ? Qt::DescendingOrder : Qt::AscendingOrder);
}

} // namespace zel

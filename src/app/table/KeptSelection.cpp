#include "app/table/KeptSelection.h"

#include "app/table/ReadingTableModel.h"

#include <QTableView>

namespace zel {

KeptSelection::Row KeptSelection::rowOf(const ReadingTableModel& model, int number) {
    const ReadingRow& row = model.rowAt(number);
    if (row.isNA()) return {QString(), row.day, 0, true};
    return {row.reading->RecID, row.day, row.reading->minuteOfDay, false};
}

KeptSelection::KeptSelection(const QTableView& table, const ReadingTableModel& model)
    : position(table.currentIndex().row()) {
    if (position >= 0) current = rowOf(model, position);
    for (const QItemSelectionRange& range : table.selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            selected.insert(rowOf(model, row));
}

int KeptSelection::placeOfCurrent(const ReadingTableModel& model) const {
    const int total = model.rowCount();
    if (position < 0 || (position < total && rowOf(model, position) == current)) return position;
    for (int row = 0; row < total; ++row)
        if (rowOf(model, row) == current) return row;
    return position < total ? position : -1;
}

void KeptSelection::restore(QTableView& table, const ReadingTableModel& model) const {
    if (const int row = placeOfCurrent(model); row >= 0)
        table.selectionModel()->setCurrentIndex(model.index(row, 0), QItemSelectionModel::NoUpdate);
    if (selected.empty()) return;
    QItemSelection found;
    const int total = model.rowCount();
    for (int end = 0, begin = 0; begin < total; begin = end + 1) {
        for (end = begin; end < total && selected.contains(rowOf(model, end));)
            ++end;
        if (end > begin) found.select(model.index(begin, 0), model.index(end - 1, 0));
    }
    table.selectionModel()->select(found, QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

} // namespace zel

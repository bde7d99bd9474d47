#pragma once

#include "store/Dates.h"

#include <QString>

#include <cstdint>
#include <set>
#include <tuple>

class QTableView;

namespace zel {

class ReadingTableModel;

/// Which rows of the readings table are selected and which one is current, to be found again in the list that
/// takes its place: by their readings, since rows may come and go before them.
class KeptSelection {
public:
    KeptSelection(const QTableView& table, const ReadingTableModel& model);
    /// Rows that are gone are selected no more; the current one then stays at its place, if there is one.
    void restore(QTableView& table, const ReadingTableModel& model) const;

private:
    /// Of the reading, or of a day without any.
    using Row = std::tuple<QString, DayNumber, std::uint16_t, bool>;
    [[nodiscard]] static Row rowOf(const ReadingTableModel& model, int number);
    [[nodiscard]] int placeOfCurrent(const ReadingTableModel& model) const;

    std::set<Row> selected;
    Row current;
    int position; ///< of the current row; -1: none
};

} // namespace zel

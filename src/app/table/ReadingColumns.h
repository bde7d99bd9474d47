#pragma once

#include <QJsonObject>
#include <QObject>

#include <vector>

class QHeaderView;
class QTableView;

namespace zel {

/// Width, order and sorting of the columns of the readings table. They share the table's room until somebody
/// sizes one; from then on each has its width.
class ReadingColumns final : public QObject {
    Q_OBJECT
public:
    /// For a table with the columns of ReadingTableModel.
    explicit ReadingColumns(QTableView& readings);

    /// The table has another width, or columns came or went.
    void layOut();
    /// Nothing would say by what the rows are sorted once that column is hidden.
    void sortByDateInsteadOf(int column);
    /// As they are in a table that nobody has touched.
    void reset();

    /// What is not as usual; empty if all is. Widths are counted in letters, so that they suit another size
    /// of type.
    [[nodiscard]] QJsonObject state() const;
    /// Takes over what can be understood of a state; the rest is as usual.
    void restore(const QJsonObject& state);

signals:
    void sorted(); ///< the rows are in another order

private:
    void dress();
    void noteWidth(int column, int before, int now);
    [[nodiscard]] std::vector<int> leastWidths() const;
    void putInOrder(const std::vector<int>& columns);
    void setWidths(const QJsonObject& letters);
    [[nodiscard]] QJsonObject widths() const;
    [[nodiscard]] double letter() const;

    QTableView& table;
    QHeaderView& header;
    bool isSized = false;     ///< by the user
    bool isLayingOut = false; ///< by the program
};

} // namespace zel

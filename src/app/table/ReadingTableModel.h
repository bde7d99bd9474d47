#pragma once

#include "analysis/ReadingRows.h"
#include "app/table/ReadingOrder.h"
#include "store/DataStore.h"

#include <QAbstractTableModel>

#include <vector>

namespace zel {

/// The list of readings that the page shows. The patient's records are copied, as the store's own are
/// replaced with each load, but only when they are others: a period of them is rows that point at the copies.
/// Texts are made when a row is shown.
class ReadingTableModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit ReadingTableModel(const DataStore& readings, QObject* parent = nullptr);

    enum Column { date, time, sys, dia, pulse, mapOrPP, mam, mark, comment, columnTotal };
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// By date ascending, as the list comes, by its days and times, or by what stands in another column: rows
    /// with nothing there come last. Persistent indexes stay with their readings. Kept with every load.
    void sort(int column, Qt::SortOrder wanted = Qt::AscendingOrder) override;
    /// The latest reading is the last row.
    [[nodiscard]] bool isByDate() const { return sortedBy == date && order == Qt::AscendingOrder; }

    /// Assembles the list anew. Nothing of the store is kept.
    void reload(const ReadingSelection& selection);
    [[nodiscard]] bool isAFib() const { return anyAFib; } ///< some reading of the list is from such a model
    [[nodiscard]] bool isPad() const { return anyPad; }
    /// That days without a reading are missing from the list, or nothing.
    [[nodiscard]] const QString& cutNote() const { return cut; }
    void setMarkTitle(const QString& title);
    /// The settings or the limits may have changed, on which texts and titles depend.
    void refreshTexts();
    /// Rows are numbered as they are shown.
    [[nodiscard]] ReadingModel row(int number) const;
    /// The reading of a row, without what the list knows of it, until the next reload(); null for a day
    /// without one.
    [[nodiscard]] const ReadingModel* readingAt(int number) const { return rowAt(number).reading; }
    [[nodiscard]] const ReadingRow& rowAt(int number) const;
    /// The row is the first of its comment's, or the last, among those that follow each other.
    [[nodiscard]] bool beginsComment(int number) const;
    [[nodiscard]] bool endsComment(int number) const;
    /// Another day begins with the row; where days do not follow each other there is no such thing.
    [[nodiscard]] bool beginsDay(int number) const;
    /// The cell is a pressure at or above the limit that values are marked from.
    [[nodiscard]] bool isHigh(const QModelIndex& index) const;
    /// The comment of a reading on one line, without what else stands in its column.
    [[nodiscard]] static QString commentText(const ReadingModel& reading);
    /// What the cell says, in words: for the clipboard and for who cannot see its circles.
    [[nodiscard]] QString words(const QModelIndex& index) const;

private:
    void copyRecords();
    [[nodiscard]] static QString toolTip(const ReadingModel& reading, Column column);
    [[nodiscard]] QString text(const ReadingModel& reading, Column column) const;
    [[nodiscard]] QString spoken(const QModelIndex& index) const;
    [[nodiscard]] SortKeys keys() const;
    void putInOrder();

    const DataStore& store;
    bool isCopied = false;        ///< the records are those of the store
    ReadingList readings;         ///< that the rows point at
    CommentList comments;         ///< likewise
    std::vector<ReadingRow> rows; ///< by date
    std::vector<int> places;      ///< in rows, of those that are shown one below the other
    int sortedBy = date;
    Qt::SortOrder order = Qt::AscendingOrder;
    QString markTitle;
    QString cut;
    bool anyAFib = false;
    bool anyPad = false;
};

/// The rows as lines of cells with tabs between them, titles first, of the given columns.
[[nodiscard]] QString tabSeparated(const ReadingTableModel& model, const std::vector<int>& rows,
                                   const std::vector<int>& columns);

} // namespace zel

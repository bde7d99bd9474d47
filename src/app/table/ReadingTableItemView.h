#pragma once

#include "app/table/ReadingTableModel.h"

#include <QStyledItemDelegate>

class QTableView;

namespace zel {

/// Draws the rows of the reading table, black on white or yellow as on paper, or in a dark desktop's colours.
class ReadingTableItemView final : public QStyledItemDelegate {
    Q_OBJECT
public:
    ReadingTableItemView(const ReadingTableModel& readings, const DataStore& dataStore, QTableView& table);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    void drawBackground(QPainter& painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const;
    void drawCell(QPainter& painter, const QRect& cell, const QModelIndex& index) const;
    void drawComment(QPainter& painter, const QRect& cell, const QModelIndex& index) const;
    void drawPlaceholder(QPainter& painter, const QRect& cell, int column) const;
    [[nodiscard]] bool isSelected(const CommentModel& comment) const;

    const ReadingTableModel& model;
    const DataStore& store;
    const QTableView& view;
};

} // namespace zel

#pragma once

#include <QTableView>

namespace zel {

/// Its current cell has the focus only while the table has it: one that is filled behind another page says
/// nothing to screen readers, as Qt's own would.
class QuietTable : public QTableView {
public:
    using QTableView::QTableView;

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
        if (hasFocus()) return QTableView::currentChanged(current, previous);
        // Without what Qt's table adds, which tells of it. NOLINTNEXTLINE(bugprone-parent-virtual-call)
        QAbstractItemView::currentChanged(current, previous);
    }
};

} // namespace zel

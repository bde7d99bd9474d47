#pragma once

#include "app/widgets/Spoken.h"

#include <QAccessibleWidget>

#include <map>
#include <utility>

namespace zel {

/// A drawn table. Its headings are no rows or columns of their own, but children like the other cells.
class SpokenGrid final : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    SpokenGrid(QWidget& widget, const SpokenTable& drawn);
    SpokenGrid(const SpokenGrid&) = delete;
    SpokenGrid& operator=(const SpokenGrid&) = delete;
    ~SpokenGrid() override;

    /// Of row 0 and column 0, which are the headings, on.
    [[nodiscard]] QAccessibleInterface* cell(int row, int column) const;
    [[nodiscard]] QString textAt(int row, int column) const;
    [[nodiscard]] QRect rectAt(int row, int column) const; ///< on the screen, as if all were of one size

    void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;

    [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* cellAt(int row, int column) const override;
    [[nodiscard]] int selectedCellCount() const override { return 0; }
    [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override { return {}; }
    [[nodiscard]] QString columnDescription(int column) const override { return textAt(0, column + 1); }
    [[nodiscard]] QString rowDescription(int row) const override { return textAt(row + 1, 0); }
    [[nodiscard]] int columnCount() const override { return columns() - 1; }
    [[nodiscard]] int rowCount() const override { return rows() - 1; }
    [[nodiscard]] int selectedColumnCount() const override { return 0; }
    [[nodiscard]] int selectedRowCount() const override { return 0; }
    [[nodiscard]] QList<int> selectedColumns() const override { return {}; }
    [[nodiscard]] QList<int> selectedRows() const override { return {}; }
    [[nodiscard]] bool isColumnSelected(int) const override { return false; }
    [[nodiscard]] bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override {}

private:
    [[nodiscard]] int rows() const;
    [[nodiscard]] int columns() const;

    const SpokenTable& table;
    mutable std::map<std::pair<int, int>, QAccessible::Id> cells; ///< made when they are asked for
};

} // namespace zel

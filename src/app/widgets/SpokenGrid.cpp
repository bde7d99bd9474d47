#include "app/widgets/SpokenGrid.h"

#include <algorithm>

namespace zel {

namespace {

class SpokenCell final : public QAccessibleInterface, public QAccessibleTableCellInterface {
public:
    SpokenCell(const SpokenGrid& itsGrid, int itsRow, int itsColumn)
        : grid(itsGrid), row(itsRow), column(itsColumn) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface*>(this)
                                                       : nullptr;
    }
    [[nodiscard]] bool isValid() const override { return grid.isValid(); }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QRect rect() const override { return grid.rectAt(row, column); }
    [[nodiscard]] QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(grid.object());
    }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? grid.textAt(row, column) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    [[nodiscard]] QAccessible::Role role() const override {
        if (row == 0) return QAccessible::ColumnHeader;
        return column == 0 ? QAccessible::RowHeader : QAccessible::Cell;
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State now;
        now.readOnly = true;
        now.invisible = grid.state().invisible;
        now.offscreen = grid.state().offscreen;
        return now;
    }

    [[nodiscard]] bool isSelected() const override { return false; }
    [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override {
        return {grid.cell(0, column)};
    }
    [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override { return {grid.cell(row, 0)}; }
    [[nodiscard]] int columnIndex() const override { return column - 1; }
    [[nodiscard]] int rowIndex() const override { return row - 1; }
    [[nodiscard]] int columnExtent() const override { return 1; }
    [[nodiscard]] int rowExtent() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* table() const override { return parent(); }

private:
    const SpokenGrid& grid;
    int row, column;
};

} // namespace

SpokenGrid::SpokenGrid(QWidget& widget, const SpokenTable& drawn)
    : QAccessibleWidget(&widget, QAccessible::Table), table(drawn) {}

SpokenGrid::~SpokenGrid() {
    for (const auto& [place, id] : cells)
        QAccessible::deleteAccessibleInterface(id);
}

int SpokenGrid::rows() const { return static_cast<int>(table.spokenRows().size()); }

int SpokenGrid::columns() const {
    const auto all = table.spokenRows();
    return all.empty() ? 0 : static_cast<int>(all.front().size());
}

QAccessibleInterface* SpokenGrid::cell(int row, int column) const {
    if (row < 0 || column < 0 || row >= rows() || column >= columns()) return nullptr;
    const auto [known, isNew] = cells.try_emplace({row, column}, 0);
    if (isNew) known->second = QAccessible::registerAccessibleInterface(new SpokenCell(*this, row, column));
    return QAccessible::accessibleInterface(known->second);
}

QString SpokenGrid::textAt(int row, int column) const {
    const auto all = table.spokenRows();
    if (row < 0 || row >= std::ssize(all)) return {};
    return all[static_cast<std::size_t>(row)].value(column);
}

QRect SpokenGrid::rectAt(int row, int column) const {
    const QRect whole = rect();
    const int width = whole.width() / std::max(1, columns()), height = whole.height() / std::max(1, rows());
    return {whole.x() + column * width, whole.y() + row * height, width, height};
}

void* SpokenGrid::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

int SpokenGrid::childCount() const { return rows() * columns(); }

QAccessibleInterface* SpokenGrid::child(int index) const {
    const int across = columns();
    return across == 0 || index < 0 ? nullptr : cell(index / across, index % across);
}

int SpokenGrid::indexOfChild(const QAccessibleInterface* child) const {
    for (int index = 0; index < childCount(); ++index)
        if (this->child(index) == child) return index;
    return -1;
}

QAccessibleInterface* SpokenGrid::childAt(int x, int y) const {
    for (int index = 0; index < childCount(); ++index)
        if (child(index)->rect().contains(x, y)) return child(index);
    return nullptr;
}

QAccessibleInterface* SpokenGrid::cellAt(int row, int column) const { return cell(row + 1, column + 1); }

} // namespace zel

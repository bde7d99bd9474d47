#pragma once

class QTableView;

namespace zel {

/// The look that all tables of the program share: calm rows of one height, no grid.
void dressTable(QTableView& table);

} // namespace zel

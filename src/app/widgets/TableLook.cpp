#include "app/widgets/TableLook.h"

#include <QHeaderView>
#include <QTableView>

namespace zel {

using namespace Qt::StringLiterals;

void dressTable(QTableView& table) {
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setTabKeyNavigation(false); // Tab leaves the table, for who has no mouse
    table.setShowGrid(false);
    table.setAlternatingRowColors(true);
    table.setWordWrap(false);
    table.setStyleSheet(
        u"QTableView::item { border: 0; padding: 0 8px; } QHeaderView::section { padding: 5px 8px; }"_s);
    table.verticalHeader()->hide();
    // Rows of one fixed height: nothing is measured, whatever their number.
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() * 9 / 5);
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table.horizontalHeader()->setHighlightSections(false);
}

} // namespace zel

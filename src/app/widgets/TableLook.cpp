#include "app/widgets/TableLook.h"

#include "app/widgets/Style.h"

#include <QHeaderView>
#include <QTableView>

namespace zel {

void dressTable(QTableView& table) {
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setTabKeyNavigation(false); // Tab leaves the table, for who has no mouse
    table.setShowGrid(false);
    table.setAlternatingRowColors(true);
    table.setWordWrap(false);
    Style::followSheet(table, &Style::tableSheet);
    table.verticalHeader()->hide();
    // Rows of one fixed height: nothing is measured, whatever their number.
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() * 9 / 5);
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setTextElideMode(Qt::ElideRight);
}

} // namespace zel

#include "app/TableViewController.h"

#include "app/EmptyState.h"
#include "app/PageHeading.h"
#include "app/PatientTexts.h"
#include "app/ReadingTableModel.h"
#include "app/TableLook.h"

#include <QHeaderView>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

TableViewController::TableViewController(const DataStore& readings, const MonitorSession& monitorSession)
    : store(readings), session(monitorSession), readingModelArray(new ReadingTableModel(readings, this)),
      heading(new PageHeading(this)), tblReadings(new QTableView(this)),
      noReadings(new EmptyState(u"noReadings"_s, u":/icons/tableBtn.InactiveImg.svg"_s, this)),
      listOrAdvice(new QStackedWidget(this)) {
    setObjectName(u"TableViewController"_s);
    setAccessibleName(qtTrId("pageReadings"));
    build();
    connect(&store, &DataStore::reloaded, this, &TableViewController::reload);
    connect(&store, &DataStore::currentIDChanged, this, &TableViewController::reload);
    connect(&session, &MonitorSession::changed, this, &TableViewController::setPadTitle);
    reload();
}

void TableViewController::build() {
    tblReadings->setObjectName(u"tblReadings"_s);
    tblReadings->setAccessibleName(qtTrId("readingList"));
    tblReadings->setModel(readingModelArray);
    dressTable(*tblReadings);
    // Measured once: measuring the rows themselves takes as long as there are many.
    QHeaderView* columns = tblReadings->horizontalHeader();
    columns->setSectionResizeMode(ReadingTableModel::date, QHeaderView::Fixed);
    columns->resizeSection(ReadingTableModel::date, tblReadings->fontMetrics().averageCharWidth() * 16);
    listOrAdvice->addWidget(tblReadings);
    listOrAdvice->addWidget(noReadings);
    setFocusProxy(tblReadings);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    column->addWidget(heading);
    column->addWidget(listOrAdvice, 1);
}

void TableViewController::reload() {
    readingModelArray->reload();
    const bool any = readingModelArray->rowCount() > 0;
    heading->setTexts(patientHeading(store), readingSummary(store));
    noReadings->setTexts(qtTrId("NoData"), qtTrId("NoDataAdvice"));
    listOrAdvice->setCurrentWidget(any ? static_cast<QWidget*>(tblReadings) : noReadings);
    setPadTitle();
}

void TableViewController::LoadData() {
    UpdateUIBySetting();
    setPadTitle();
    tblReadings->scrollToBottom(); // the latest reading is what people come for
}

void TableViewController::UpdateUIBySetting() {
    heading->setTexts(patientHeading(store), readingSummary(store));
    readingModelArray->refreshTexts();
}

void TableViewController::setHWButtons(bool) { setPadTitle(); }

void TableViewController::setPadTitle() {
    const bool monitorDecides = !readingModelArray->isAFib() && !readingModelArray->isPad();
    if (readingModelArray->isAFib() || (monitorDecides && session.state().isAFib))
        readingModelArray->setMarkTitle(qtTrId("afib"));
    else if (store.getTargetString().startsWith("pad"_L1))
        readingModelArray->setMarkTitle(qtTrId("pad"));
    else
        readingModelArray->setMarkTitle(qtTrId("ihd"));
}

} // namespace zel

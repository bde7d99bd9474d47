#pragma once

#include "app/MonitorSession.h"
#include "app/PageController.h"
#include "store/DataStore.h"

class QStackedWidget;
class QTableView;

namespace zel {

class EmptyState;
class PageHeading;
class ReadingTableModel;

/// The page that lists the current patient's readings.
class TableViewController final : public PageController {
    Q_OBJECT
public:
    TableViewController(const DataStore& readings, const MonitorSession& monitorSession);

    void LoadData() override;
    void UpdateUIBySetting() override;
    void setHWButtons(bool connected) override;
    /// Titles the mark column by what the readings, or else the monitor, can tell.
    void setPadTitle();

private:
    void build();
    void reload();

    const DataStore& store;
    const MonitorSession& session;
    ReadingTableModel* readingModelArray;
    PageHeading* heading;
    QTableView* tblReadings;
    EmptyState* noReadings;
    QStackedWidget* listOrAdvice;
};

} // namespace zel

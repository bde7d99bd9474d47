#pragma once

#include "app/MonitorSession.h"
#include "app/MonitorWorker.h"
#include "app/PageController.h"
#include "store/DataStore.h"

class QPushButton;
class QStackedWidget;
class QTableView;

namespace zel {

class EmptyState;
class PatientTableModel;

/// The roster page: choosing the patient whose data the program shows, and the monitor's commands.
class PatientViewController final : public PageController {
    Q_OBJECT
public:
    PatientViewController(DataStore& patients, MonitorSession& monitorSession, MonitorWorker& monitorWorker,
                          MessagePanel& messagePanel);

    void LoadData() override;
    void UpdateUIBySetting() override {}
    void setHWButtons(bool connected) override;
    /// A monitor is connected and holds the selected patient's ID.
    [[nodiscard]] bool CanDataTransfer() const;
    /// Writes the selected patient's ID into the monitor, after asking.
    void sendID();

signals:
    void dataTransferWanted();
    void updateUIWanted(); ///< the monitor's ID has been changed
    void rosterChanged(bool hasPatients);

private:
    void build();
    QWidget* makeButtons();
    void reload();
    void select(int row);
    void selected(int row);
    void enableButtons();
    [[nodiscard]] bool isMonitorFree() const;
    [[nodiscard]] bool canSendID() const;
    void readingsCounted(const QString& ID, int count);
    void writeID(const QString& ID);
    void giveUp(MonitorResult result);

    DataStore& store;
    MonitorSession& session;
    MonitorWorker& monitor;
    MessagePanel& panel;
    PatientTableModel* roster;
    QTableView* tblPatients;
    EmptyState* noPatients;
    QStackedWidget* listOrAdvice;
    QPushButton* btnSendID;
    QPushButton* btnDataTransfer;
};

} // namespace zel

#pragma once

#include "app/device/MonitorStatus.h"
#include "app/device/MonitorWorker.h"
#include "store/DataStore.h"

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace zel {

/// How a download ended.
struct DownloadOutcome {
    std::size_t downloaded = 0;
    std::size_t added = 0;   ///< of these, how many were not stored before
    std::size_t leftOut = 0; ///< typed readings that are left out from now on, since these were measured
    bool cancelled = false;
    QString failure{}; ///< what went wrong, in plain words; empty when nothing did
    bool operator==(const DownloadOutcome&) const = default;
};

/// The outcome in one line for the user.
[[nodiscard]] QString describe(const DownloadOutcome& outcome);

/// The modal window of a download: fetches the monitor's readings, stores them and, when the settings say so
/// and the readings are safely stored, empties the monitor. Made once and kept.
class ProgressWindowController final : public QDialog {
    Q_OBJECT
public:
    struct Parts {
        DataStore& store;
        MonitorStatus& status;
        MonitorWorker& monitor;
    };
    ProgressWindowController(const Parts& parts, QWidget* parent);

    /// Opens the window and starts the download for the current patient.
    void showProgress();
    /// \p current readings of \p total have come; a report below the highest one shown is ignored.
    void setProcessInfo(int total, int current);
    /// Nothing comes from the monitor, which is waited for at most so long.
    void showWaiting(std::chrono::seconds left);
    /// The user's way out (Esc, the close button, Cancel): ends the exchange with the monitor.
    void reject() override;

signals:
    void finished(const DownloadOutcome& outcome);

private:
    void build();
    void dataTransfer();
    void downloaded(MonitorExpected<ReadingList> readings);
    void quietMonitor();
    void storeReadings(ReadingList readings);
    void eraseMonitor(const DownloadOutcome& stored);
    void finish(const DownloadOutcome& outcome);

    Parts parts;
    QString patientID;
    int highestShown = 0;
    bool underWay = false; ///< the exchange that Cancel may end
    bool cancelled = false;
    QLabel* lblPatient;
    QLabel* lblProcess;
    QLabel* lblWaiting;
    QProgressBar* barProgress;
    QPushButton* btnCancel;
};

} // namespace zel

#pragma once

#include "app/device/MonitorStatus.h"
#include "app/device/MonitorWorker.h"
#include "store/DataStore.h"

#include <QObject>

namespace zel {

/// Writes a patient's ID into the monitor, after asking, and after asking what becomes of its readings.
class PatientIDSender final : public QObject {
    Q_OBJECT
public:
    struct Parts {
        MonitorStatus& status;
        MonitorWorker& monitor;
        const DataStore& store;
        MessagePanel& panel;
    };
    explicit PatientIDSender(const Parts& needed, QObject* parent = nullptr);
    void sendID(const QString& ID);

signals:
    void sent();

private:
    /// What the monitor says that it holds.
    struct Holding {
        MonitorExpected<QString> ID;
        MonitorExpected<int> readings;
    };
    [[nodiscard]] static Holding ask(BPMModel& monitor);

    void readingsCounted(const QString& ID, const Holding& holding);
    void askForReadings(const QString& ID, const Holding& holding);
    void erase(const QString& ID);
    void write(const QString& ID, bool isErased);
    void changeFailed(MonitorResult result, bool isErased);
    void giveUp(const QString& told);
    [[nodiscard]] QString whose(const std::optional<QString>& ID) const;

    Parts parts;
};

} // namespace zel

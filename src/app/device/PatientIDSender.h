#pragma once

#include "app/device/MonitorStatus.h"
#include "app/device/MonitorWorker.h"
#include "store/MessagePanel.h"

#include <QObject>

namespace zel {

/// Writes a patient's ID into the monitor, after asking, and after asking what becomes of its readings.
class PatientIDSender final : public QObject {
    Q_OBJECT
public:
    PatientIDSender(MonitorStatus& monitorStatus, MonitorWorker& monitorWorker, MessagePanel& messagePanel,
                    QObject* parent = nullptr);
    void sendID(const QString& ID);

signals:
    void sent();

private:
    void readingsCounted(const QString& ID, int count);
    void writeID(const QString& ID);
    void giveUp(MonitorResult result);

    MonitorStatus& status;
    MonitorWorker& monitor;
    MessagePanel& panel;
};

} // namespace zel

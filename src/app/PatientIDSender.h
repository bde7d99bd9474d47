#pragma once

#include "app/MonitorSession.h"
#include "app/MonitorWorker.h"
#include "store/MessagePanel.h"

#include <QObject>

namespace zel {

/// Writes a patient's ID into the monitor, after asking, and after asking what becomes of its readings.
class PatientIDSender final : public QObject {
    Q_OBJECT
public:
    PatientIDSender(MonitorSession& monitorSession, MonitorWorker& monitorWorker, MessagePanel& messagePanel,
                    QObject* parent = nullptr);
    void sendID(const QString& ID);

signals:
    void sent();

private:
    void readingsCounted(const QString& ID, int count);
    void writeID(const QString& ID);
    void giveUp(MonitorResult result);

    MonitorSession& session;
    MonitorWorker& monitor;
    MessagePanel& panel;
};

} // namespace zel

#include "app/device/PatientIDSender.h"

namespace zel {

PatientIDSender::PatientIDSender(MonitorStatus& monitorStatus, MonitorWorker& monitorWorker,
                                 MessagePanel& messagePanel, QObject* parent)
    : QObject(parent), status(monitorStatus), monitor(monitorWorker), panel(messagePanel) {}

void PatientIDSender::sendID(const QString& ID) {
    if (!BPMModel::fitsMonitor(ID))
        return panel.ShowMessage(qtTrId("IDNotForMonitor").arg(ID), qtTrId("Warning"));
    // Busy from the question on, so that nothing else is begun with the monitor behind it.
    status.setActivity(MonitorActivity::asking);
    if (!panel.AskMessage(qtTrId("confirmSendID").arg(ID), qtTrId("sendID")))
        return status.setActivity(MonitorActivity::none);
    status.setActivity(MonitorActivity::counting);
    const auto count = [](BPMModel& model) { return model.getBPMCycleDataCount(); };
    monitor.submit(this, count, [this, ID](const MonitorExpected<int>& readings) {
        if (readings)
            readingsCounted(ID, *readings);
        else
            giveUp(readings.error());
    });
}

void PatientIDSender::readingsCounted(const QString& ID, int count) {
    if (count == 0 || panel.AskMessage(qtTrId("SendIDDataMsg", count), qtTrId("SendIDDataTitle")))
        return writeID(ID);
    status.setActivity(MonitorActivity::erasing);
    const auto erase = [ID](BPMModel& model) { return model.eraseData(ID); };
    monitor.submit(this, erase, [this, ID](MonitorResult result) {
        if (result == MonitorResult::success)
            writeID(ID);
        else
            giveUp(result);
    });
}

void PatientIDSender::writeID(const QString& ID) {
    status.setActivity(MonitorActivity::sendingID);
    const auto write = [ID](BPMModel& model) { return model.sendID(ID, false); };
    monitor.submit(this, write, [this](MonitorResult result) {
        if (result != MonitorResult::success) return giveUp(result);
        status.setActivity(MonitorActivity::none);
        emit sent();
    });
}

void PatientIDSender::giveUp(MonitorResult result) {
    status.setActivity(MonitorActivity::none);
    panel.ShowMessage(qtTrId("sendIDFailed").arg(describe(result)), qtTrId("Warning"));
}

} // namespace zel

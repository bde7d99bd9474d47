#include "app/device/PatientIDSender.h"

#include "app/widgets/PatientTexts.h"

namespace zel {

namespace {

std::optional<QString> known(const MonitorExpected<QString>& ID) {
    return ID ? std::optional(*ID) : std::nullopt;
}

} // namespace

PatientIDSender::PatientIDSender(const Parts& needed, QObject* parent) : QObject(parent), parts(needed) {}

void PatientIDSender::sendID(const QString& ID) {
    if (!BPMModel::fitsMonitor(ID))
        return parts.panel.ShowMessage(qtTrId("IDNotForMonitor").arg(ID), qtTrId("Warning"));
    // Busy from the question on, so that nothing else is begun with the monitor behind it.
    parts.status.setActivity(MonitorActivity::asking);
    const QString question = qtTrId("confirmSendID").arg(ID, whose(parts.status.state().IDOnDevice));
    if (!parts.panel.AskMessage(question, qtTrId("sendID")))
        return parts.status.setActivity(MonitorActivity::none);
    parts.status.setActivity(MonitorActivity::counting);
    parts.monitor.submit(this, ask, [this, ID](const Holding& holding) { readingsCounted(ID, holding); });
}

PatientIDSender::Holding PatientIDSender::ask(BPMModel& monitor) {
    Holding holding{.ID = monitor.getBPMID(), .readings = {}};
    const int asked = monitor.openings();
    holding.readings = monitor.getBPMCycleDataCount();
    // The readings of one monitor must not be erased under the name of another.
    if (monitor.openings() != asked) holding.ID = tl::unexpected(MonitorResult::readFailed);
    return holding;
}

void PatientIDSender::readingsCounted(const QString& ID, const Holding& holding) {
    if (!holding.readings) return giveUp(qtTrId("sendIDFailed").arg(describe(holding.readings.error())));
    if (*holding.readings == 0) return write(ID, false);
    // Counting takes a while, and nobody waits for it with his hands still.
    parts.panel.interject(this, [this, ID, holding] { askForReadings(ID, holding); });
}

void PatientIDSender::askForReadings(const QString& ID, const Holding& holding) {
    const QString question =
        whose(known(holding.ID)) + u' ' + qtTrId("SendIDDataMsg", *holding.readings).arg(ID);
    switch (parts.panel.AskToKeep(question, qtTrId("SendIDDataTitle"))) {
    case KeepAnswer::keep: return write(ID, false);
    case KeepAnswer::erase: return erase(ID);
    case KeepAnswer::cancel: return parts.status.setActivity(MonitorActivity::none);
    }
}

void PatientIDSender::erase(const QString& ID) {
    parts.status.setActivity(MonitorActivity::erasing);
    const auto job = [ID](BPMModel& model) { return model.eraseData(ID); };
    parts.monitor.submit(this, job, [this, ID](MonitorResult result) {
        if (result != MonitorResult::success) return changeFailed(result, false);
        write(ID, true);
    });
}

void PatientIDSender::write(const QString& ID, bool isErased) {
    parts.status.setActivity(MonitorActivity::sendingID);
    const auto job = [ID](BPMModel& model) { return model.sendID(ID, false); };
    parts.monitor.submit(this, job, [this, isErased](MonitorResult result) {
        if (result != MonitorResult::success) return changeFailed(result, isErased);
        parts.status.setActivity(MonitorActivity::none);
        emit sent();
    });
}

/// What was begun may have left another ID, or no readings: the user is told what there is now.
void PatientIDSender::changeFailed(MonitorResult result, bool isErased) {
    const QString told =
        (isErased ? qtTrId("sendIDFailedErased") : qtTrId("sendIDFailed")).arg(describe(result));
    parts.monitor.submit(this, ask, [this, told](const Holding& holding) {
        const QString readings = holding.readings ? qtTrId("monitorHoldsReadings", *holding.readings)
                                                  : qtTrId("monitorReadingsUnknown");
        giveUp(told + u'\n' + whose(known(holding.ID)) + u' ' + readings);
    });
}

void PatientIDSender::giveUp(const QString& told) {
    parts.status.setActivity(MonitorActivity::none);
    parts.panel.interject(this, [this, told] { parts.panel.ShowMessage(told, qtTrId("Warning")); });
}

QString PatientIDSender::whose(const std::optional<QString>& ID) const {
    if (!ID) return qtTrId("monitorHoldsUnknown");
    if (ID->isEmpty()) return qtTrId("monitorHoldsNone");
    const PatientModel* patient = parts.store.getPatientByID(*ID);
    return patient ? qtTrId("monitorHoldsPatient").arg(*ID, shortName(*patient))
                   : qtTrId("monitorHoldsOther").arg(*ID);
}

} // namespace zel

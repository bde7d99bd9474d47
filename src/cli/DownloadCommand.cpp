#include "cli/Commands.h"
#include "cli/MonitorConnection.h"
#include "cli/OpenStore.h"
#include "cli/ProgressLine.h"
#include "cli/Usage.h"
#include "store/Text.h"

#include <algorithm>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

/// Another patient's readings must not get into this one's list unnoticed. \return the monitor's ID
tl::expected<QString, Failure> checkMonitorID(BPMModel& model, const Request& request,
                                              const QString& patientID) {
    const auto ID = model.getBPMID();
    if (!ID) return failed(qtTrId("CliIDUnread").arg(describe(ID.error())));
    if (*ID == patientID || request.options.isSet(u"any-monitor"_s)) return *ID;
    if (ID->isEmpty()) return failed(qtTrId("CliMonitorWithoutID").arg(patientID));
    return failed(qtTrId("CliOtherMonitor").arg(*ID, patientID));
}

tl::expected<ReadingList, Failure> receive(BPMModel& model, Surroundings& around) {
    ProgressLine progress(around);
    auto readings = model.getBPMCycleData([&](int total, int done) { progress.show(total, done); },
                                          [&](std::chrono::seconds left) { progress.waiting(left); });
    if (!readings) return failed(qtTrId("CliDownloadFailed").arg(describe(readings.error())));
    return std::move(*readings);
}

/// With the monitor's own ID, so that --any-monitor does not make it the patient's.
CommandResult emptyMonitor(BPMModel& model, const QString& monitorID, const QString& patientID) {
    const MonitorResult result = model.eraseData(BPMModel::fitsMonitor(monitorID) ? monitorID : patientID);
    if (result == MonitorResult::unconfirmed)
        return failed(qtTrId("CliEraseAfterUnseen").arg(describe(result)));
    if (result != MonitorResult::success) return failed(qtTrId("CliEraseAfterFailed").arg(describe(result)));
    return {};
}

CommandResult transfer(BPMModel& model, DataStore& store, const QString& monitorID, Surroundings& around) {
    const int asked = model.openings();
    auto readings = receive(model, around);
    if (!readings) return tl::unexpected(readings.error());
    // The tries of a download open the device anew: it may be another one by now, and no ID tells two apart
    // that have none.
    const bool isUnknown = monitorID.isEmpty() && model.openings() != asked;
    const auto isOthers = [&](const ReadingModel& reading) { return TrimStr(reading.ID) != monitorID; };
    if (isUnknown || std::ranges::any_of(*readings, isOthers)) return failed(qtTrId("CliMonitorChanged"));
    const std::size_t downloaded = readings->size();
    const auto stored = store.newDataTransfer(std::move(*readings));
    if (!stored) {
        const QString told = isInPlace(stored) ? qtTrId("downloadNotFlushed") : qtTrId("CliDownloadUnsaved");
        return failed(told.arg(describe(stored.error())));
    }
    printLine(around.out, u"downloaded: "_s + QString::number(downloaded));
    printLine(around.out, u"new: "_s + QString::number(stored->added));
    if (stored->leftOut > 0) printLine(around.out, u"left-out: "_s + QString::number(stored->leftOut));
    if (const StoreResult& loaded = store.lastLoad(); !loaded)
        return failed(qtTrId("CliDownloadNotReadBack").arg(describe(loaded.error())));
    if (downloaded == 0 || store.getSetting().eraseRecAfterReading != 1) return {};
    return emptyMonitor(model, monitorID, store.getCurrentID());
}

CommandResult runDownload(const Request& request, Surroundings& around) {
    const auto ID = requiredValue(request, u"patient"_s);
    if (!ID) return tl::unexpected(ID.error());
    const auto wait = waitTime(request);
    if (!wait) return tl::unexpected(wait.error());
    const OpenedStore store = openStoreForWriting(around);
    if (!store) return tl::unexpected(store.error());
    if (CommandResult known = checkPatient(**store, *ID); !known) return known;
    // A person's readings would be among invented ones, and the monitor might be emptied behind them.
    if ((*store)->isDemonstration() && !request.simulatedMonitor)
        return failed(qtTrId("CliDemonstrationMonitor"));
    const auto connection = waitForMonitor(request, *wait, around);
    if (!connection) return tl::unexpected(connection.error());
    const auto monitorID = checkMonitorID(*connection->model, request, *ID);
    if (!monitorID) return tl::unexpected(monitorID.error());
    (*store)->setCurrentID(*ID);
    return transfer(*connection->model, **store, *monitorID, around);
}

} // namespace

Command downloadCommand() {
    return {"download", [] { return qtTrId("CliHelpDownload"); },
            [] {
                return QList{valued(u"patient"_s), flag(u"any-monitor"_s), waitOption()};
            },
            runDownload};
}

} // namespace zel::cli

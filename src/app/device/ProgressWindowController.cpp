#include "app/device/ProgressWindowController.h"

#include "app/widgets/Log.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/SeenName.h"
#include "app/widgets/Style.h"
#include "store/Text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

QString describe(const DownloadOutcome& outcome) {
    if (outcome.cancelled) return qtTrId("downloadCancelled");
    if (!outcome.failure.isEmpty()) return outcome.failure;
    if (outcome.downloaded == 0) return qtTrId("downloadEmpty");
    const QString fetched = qtTrId("downloadFetched", static_cast<int>(outcome.downloaded));
    if (outcome.added == 0) return qtTrId("downloadNothingNew").arg(fetched);
    QString added = qtTrId("downloadNew", static_cast<int>(outcome.added)).arg(fetched);
    if (outcome.leftOut == 0) return added;
    return added + qtTrId("; ") + qtTrId("downloadTypedLeftOut", static_cast<int>(outcome.leftOut));
}

ProgressWindowController::ProgressWindowController(const Parts& needed, QWidget* parent)
    : QDialog(parent), parts(needed), lblPatient(new QLabel(this)), lblProcess(new QLabel(this)),
      lblWaiting(new QLabel(this)), barProgress(new QProgressBar(this)),
      btnCancel(new QPushButton(qtTrId("cancel"), this)) {
    setObjectName(u"ProgressWindowController"_s);
    setWindowTitle(qtTrId("download"));
    setAccessibleName(qtTrId("download"));
    setModal(true);
    build();
    connect(btnCancel, &QPushButton::clicked, this, &ProgressWindowController::reject);
}

void ProgressWindowController::build() {
    lblPatient->setObjectName(u"lblPatient"_s);
    Style::setType(*lblPatient, Style::Type::heading);
    lblPatient->setTextFormat(Qt::PlainText);
    lblPatient->setWordWrap(true);
    lblProcess->setObjectName(u"lblProcess"_s);
    lblProcess->setTextFormat(Qt::PlainText);
    lblWaiting->setObjectName(u"lblWaiting"_s);
    lblWaiting->setTextFormat(Qt::PlainText);
    lblWaiting->setWordWrap(true);
    lblWaiting->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    lblWaiting->setMinimumHeight(3 * lblWaiting->fontMetrics().lineSpacing()); // the window does not jump
    barProgress->setObjectName(u"barProgress"_s);
    barProgress->setAccessibleName(qtTrId("downloadProgress"));
    barProgress->setRange(0, 100);
    btnCancel->setObjectName(u"btnCancel"_s);
    nameAsSeen(*btnCancel, btnCancel->text(), qtTrId("downloadCancel"));
    auto* advice = new QuietLabel(qtTrId("downloadAdvice"), this);
    advice->setWordWrap(true);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Style::wide, Style::wide, Style::wide, Style::wide);
    column->setSpacing(Style::apart);
    column->addWidget(lblPatient);
    column->addWidget(barProgress);
    column->addWidget(lblProcess);
    column->addWidget(lblWaiting);
    column->addWidget(advice);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(btnCancel);
    column->addLayout(row);
    setMinimumWidth(fontMetrics().averageCharWidth() * 64);
}

void ProgressWindowController::showProgress() {
    highestShown = 0;
    cancelled = false;
    underWay = true;
    patientID = parts.store.getCurrentID();
    barProgress->setValue(0);
    lblProcess->setText(qtTrId("downloadStarting"));
    lblWaiting->clear();
    btnCancel->setEnabled(true);
    if (const PatientModel* patient = parts.store.getPatientByID(patientID))
        lblPatient->setText(
            qtTrId("ProgressPatientInfo").arg(patient->GivenNames, patient->FamilyName, patient->ID));
    open();
    btnCancel->setFocus();
    dataTransfer();
}

void ProgressWindowController::dataTransfer() {
    parts.status.setActivity(MonitorActivity::downloading);
    const auto download = [this, &worker = parts.monitor, home = QPointer<QObject>(this)](BPMModel& monitor) {
        return monitor.getBPMCycleData(
            [&, this](int total, int done) {
                worker.hand(home, [this, total, done] { setProcessInfo(total, done); });
            },
            [&, this](std::chrono::seconds left) { worker.hand(home, [this, left] { showWaiting(left); }); });
    };
    parts.monitor.submit(this, download, [this](MonitorExpected<ReadingList> readings) {
        parts.monitor.resume();
        underWay = false;
        lblWaiting->clear();
        downloaded(std::move(readings));
    });
}

void ProgressWindowController::setProcessInfo(int total, int current) {
    lblWaiting->clear();
    if (current < highestShown) return;
    highestShown = current;
    lblProcess->setText(qtTrId("ProgressProcessInfo").arg(current).arg(total));
    barProgress->setValue(total > 0 ? std::min(current, total) * 100 / total : 0);
}

void ProgressWindowController::showWaiting(std::chrono::seconds left) {
    if (!cancelled) lblWaiting->setText(qtTrId("downloadWaiting", static_cast<int>(left.count())));
}

void ProgressWindowController::reject() {
    if (!underWay || cancelled) return;
    cancelled = true;
    btnCancel->setEnabled(false);
    lblProcess->setText(qtTrId("downloadStopping"));
    lblWaiting->clear();
    parts.monitor.interrupt();
}

void ProgressWindowController::downloaded(MonitorExpected<ReadingList> readings) {
    btnCancel->setEnabled(false);
    if (cancelled) return quietMonitor();
    if (!readings) return finish({.failure = qtTrId("downloadFailed").arg(describe(readings.error()))});
    const auto isOthers = [this](const ReadingModel& reading) { return TrimStr(reading.ID) != patientID; };
    if (std::ranges::any_of(*readings, isOthers)) return finish({.failure = qtTrId("downloadOtherMonitor")});
    if (readings->empty()) return finish({});
    storeReadings(std::move(*readings));
}

void ProgressWindowController::quietMonitor() {
    const auto quiet = [](BPMModel& monitor) {
        monitor.quietLine();
        return true;
    };
    parts.monitor.submit(this, quiet, [this](bool) { finish({.cancelled = true}); });
}

void ProgressWindowController::storeReadings(ReadingList readings) {
    DownloadOutcome outcome{.downloaded = readings.size()};
    const auto stored = parts.store.newDataTransfer(patientID, std::move(readings));
    if (!stored) {
        const QString told = isInPlace(stored) ? qtTrId("downloadNotFlushed") : qtTrId("downloadNotStored");
        return finish({.failure = told.arg(describe(stored.error()))});
    }
    outcome.added = stored->added;
    outcome.leftOut = stored->leftOut;
    // Stored, but nobody can see it yet: the monitor keeps its readings.
    if (const StoreResult& loaded = parts.store.lastLoad(); !loaded) {
        outcome.failure = qtTrId("downloadNotReadBack").arg(describe(outcome), describe(loaded.error()));
        return finish(outcome);
    }
    if (std::as_const(parts.store).getSetting().eraseRecAfterReading == 1)
        eraseMonitor(outcome);
    else
        finish(outcome);
}

/// Only reached when all that the monitor held is in the data file.
void ProgressWindowController::eraseMonitor(const DownloadOutcome& stored) {
    lblProcess->setText(qtTrId("monitorErasing"));
    const auto erase = [ID = patientID](BPMModel& monitor) { return monitor.eraseData(ID); };
    parts.monitor.submit(this, erase, [this, stored](MonitorResult result) {
        DownloadOutcome outcome = stored;
        if (result == MonitorResult::unconfirmed)
            outcome.failure = qtTrId("eraseNotSeen").arg(describe(stored), describe(result));
        else if (result != MonitorResult::success)
            outcome.failure = qtTrId("eraseFailed").arg(describe(stored), describe(result));
        finish(outcome);
    });
}

void ProgressWindowController::finish(const DownloadOutcome& outcome) {
    qCInfo(lcApp, "close progress dialog");
    parts.status.setActivity(MonitorActivity::none);
    hide();
    emit finished(outcome);
}

} // namespace zel

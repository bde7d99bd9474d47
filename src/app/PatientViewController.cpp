#include "app/PatientViewController.h"

#include "app/EmptyState.h"
#include "app/PageHeading.h"
#include "app/PatientTableModel.h"
#include "app/TableLook.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTableView>

namespace zel {

using namespace Qt::StringLiterals;

PatientViewController::PatientViewController(DataStore& patients, MonitorSession& monitorSession,
                                             MonitorWorker& monitorWorker, MessagePanel& messagePanel)
    : store(patients), session(monitorSession), monitor(monitorWorker), panel(messagePanel),
      roster(new PatientTableModel(patients, this)), tblPatients(new QTableView(this)),
      noPatients(new EmptyState(u"noPatients"_s, u":/icons/patientBtn.InactiveImg.svg"_s, this)),
      listOrAdvice(new QStackedWidget(this)), btnSendID(new QPushButton(this)),
      btnDataTransfer(new QPushButton(this)) {
    setObjectName(u"PatientViewController"_s);
    setAccessibleName(qtTrId("pagePatients"));
    build();
    connect(&store, &DataStore::reloaded, this, &PatientViewController::reload);
    connect(&session, &MonitorSession::changed, this, &PatientViewController::enableButtons);
    connect(tblPatients->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& now) { selected(now.row()); });
    connect(btnSendID, &QPushButton::clicked, this, &PatientViewController::sendID);
    connect(btnDataTransfer, &QPushButton::clicked, this, &PatientViewController::dataTransferWanted);
    reload();
}

void PatientViewController::build() {
    tblPatients->setObjectName(u"tblPatients"_s);
    tblPatients->setAccessibleName(qtTrId("patientList"));
    tblPatients->setModel(roster);
    dressTable(*tblPatients);
    tblPatients->setSelectionMode(QAbstractItemView::SingleSelection);
    listOrAdvice->addWidget(tblPatients);
    listOrAdvice->addWidget(noPatients);
    setFocusProxy(tblPatients);

    auto* heading = new PageHeading(this);
    heading->setTexts(qtTrId("pagePatients"), qtTrId("patientsDetail"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    column->addWidget(heading);
    column->addWidget(listOrAdvice, 1);
    column->addWidget(makeButtons());
}

QWidget* PatientViewController::makeButtons() {
    btnSendID->setObjectName(u"btnSendID"_s);
    btnSendID->setText(qtTrId("sendIDButton"));
    btnSendID->setAccessibleName(qtTrId("sendID"));
    btnSendID->setToolTip(qtTrId("sendIDHint"));
    btnDataTransfer->setObjectName(u"btnDataTransfer"_s);
    btnDataTransfer->setText(qtTrId("downloadButton"));
    btnDataTransfer->setAccessibleName(qtTrId("download"));
    btnDataTransfer->setToolTip(qtTrId("downloadHint"));
    auto* download = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_D), this);
    connect(download, &QShortcut::activated, btnDataTransfer, [this] { btnDataTransfer->click(); });

    auto* buttons = new QWidget(this);
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    row->addStretch(1);
    row->addWidget(btnSendID);
    row->addWidget(btnDataTransfer);
    return buttons;
}

void PatientViewController::LoadData() { enableButtons(); }

void PatientViewController::setHWButtons(bool) { enableButtons(); }

/// Keeps the selection by the patient's ID; a patient that is gone gives way to the first.
void PatientViewController::reload() {
    const QString kept = store.getCurrentID();
    roster->reload();
    const bool hasPatients = roster->rowCount() > 0;
    if (const StoreResult& loaded = store.lastLoad(); loaded)
        noPatients->setTexts(qtTrId("noPatients"), qtTrId("noPatientsAdvice"));
    else
        noPatients->setTexts(qtTrId("dataFileUnreadable"), describe(loaded.error()));
    listOrAdvice->setCurrentWidget(hasPatients ? static_cast<QWidget*>(tblPatients) : noPatients);
    if (hasPatients)
        select(std::max(roster->rowOf(kept), 0));
    else
        store.setCurrentID({});
    enableButtons();
    emit rosterChanged(hasPatients);
}

void PatientViewController::select(int row) {
    tblPatients->selectRow(row);
    selected(row);
}

void PatientViewController::selected(int row) {
    if (row < 0) return;
    store.setCurrentID(roster->IDAt(row));
    enableButtons();
}

bool PatientViewController::CanDataTransfer() const {
    return isMonitorFree() && store.getCurrentID() == session.state().IDOnDevice;
}

/// Connected, its ID known, nothing under way, and a patient to do something for.
bool PatientViewController::isMonitorFree() const {
    return session.state().isConnected && session.state().IDOnDevice && !session.isBusy()
           && !store.getCurrentID().isEmpty();
}

bool PatientViewController::canSendID() const {
    return isMonitorFree() && store.getCurrentID() != session.state().IDOnDevice;
}

void PatientViewController::enableButtons() {
    btnDataTransfer->setEnabled(CanDataTransfer());
    btnSendID->setEnabled(canSendID());
}

void PatientViewController::sendID() {
    const QString ID = store.getCurrentID();
    if (!BPMModel::fitsMonitor(ID))
        return panel.ShowMessage(qtTrId("IDNotForMonitor").arg(ID), qtTrId("Warning"));
    // Busy from the question on, so that nothing else is begun with the monitor behind it.
    session.setActivity(MonitorActivity::asking);
    if (!panel.AskMessage(qtTrId("confirmSendID").arg(ID), qtTrId("sendID")))
        return session.setActivity(MonitorActivity::none);
    session.setActivity(MonitorActivity::counting);
    const auto count = [](BPMModel& model) { return model.getBPMCycleDataCount(); };
    monitor.submit(this, count, [this, ID](const MonitorExpected<int>& readings) {
        if (readings)
            readingsCounted(ID, *readings);
        else
            giveUp(readings.error());
    });
}

void PatientViewController::readingsCounted(const QString& ID, int count) {
    if (count == 0 || panel.AskMessage(qtTrId("SendIDDataMsg", count), qtTrId("SendIDDataTitle")))
        return writeID(ID);
    session.setActivity(MonitorActivity::erasing);
    const auto erase = [ID](BPMModel& model) { return model.eraseData(ID); };
    monitor.submit(this, erase, [this, ID](MonitorResult result) {
        if (result == MonitorResult::success)
            writeID(ID);
        else
            giveUp(result);
    });
}

void PatientViewController::writeID(const QString& ID) {
    session.setActivity(MonitorActivity::sendingID);
    const auto write = [ID](BPMModel& model) { return model.sendID(ID, false); };
    monitor.submit(this, write, [this](MonitorResult result) {
        if (result != MonitorResult::success) return giveUp(result);
        session.setActivity(MonitorActivity::none);
        emit updateUIWanted();
    });
}

void PatientViewController::giveUp(MonitorResult result) {
    session.setActivity(MonitorActivity::none);
    panel.ShowMessage(qtTrId("sendIDFailed").arg(describe(result)), qtTrId("Warning"));
}

} // namespace zel

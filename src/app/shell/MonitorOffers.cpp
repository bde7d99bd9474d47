#include "app/shell/MonitorOffers.h"

#include "app/device/MonitorBar.h"
#include "app/patients/PatientViewController.h"

namespace zel {

MonitorOffers::MonitorOffers(MonitorBar& bar, const Parts& needed, QObject* parent)
    : QObject(parent), parts(needed) {
    connect(&bar, &MonitorBar::downloadWanted, this, &MonitorOffers::download);
    connect(&bar, &MonitorBar::newPatientWanted, this, &MonitorOffers::addPatient);
}

void MonitorOffers::download(const QString& ID) {
    if (!parts.showPatients()) return;
    const bool isChosen = parts.store.getCurrentID() == ID;
    parts.patients.showPatient(ID);
    if (parts.store.getCurrentID() != ID || (isChosen && !parts.patients.leave())) return;
    // While a question was open, the monitor may have been pulled out or changed for another.
    if (!parts.patients.CanDataTransfer()) return emit said(qtTrId("monitorChangedMeanwhile"));
    emit downloadWanted();
}

void MonitorOffers::addPatient(const QString& ID) {
    if (parts.showPatients()) parts.patients.addPatient(ID);
}

} // namespace zel

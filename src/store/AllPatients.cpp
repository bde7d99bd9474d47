#include "store/AllPatients.h"

namespace zel {

AllPatients allPatients(const QStringList& IDs) {
    AllPatients all{.IDs = IDs};
    all.sameID = static_cast<int>(all.IDs.removeDuplicates());
    return all;
}

AllPatients allPatients(const std::vector<PatientModel>& patients) {
    QStringList IDs;
    for (const PatientModel& patient : patients)
        IDs += patient.ID;
    return allPatients(IDs);
}

} // namespace zel

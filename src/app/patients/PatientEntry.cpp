#include "app/patients/PatientEntry.h"

namespace zel {

PatientEntry keepTyped(const PatientEntry& typed, const PatientEntry& shown, PatientEntry fresh) {
    forEachPatientField([&](PatientField field) {
        if (typed[field] != shown[field]) fresh[field] = typed[field];
    });
    return fresh;
}

} // namespace zel

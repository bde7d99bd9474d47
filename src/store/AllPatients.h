#pragma once

#include "store/PatientModel.h"

#include <QStringList>

#include <vector>

namespace zel {

/// Whom an export of all patients is of, whatever its form: every patient, also one without an ID.
struct AllPatients {
    QStringList IDs; ///< each once, in the order of the patients
    int sameID = 0;  ///< patients who are found by no ID of their own: one with it stands before them
};

[[nodiscard]] AllPatients allPatients(const QStringList& IDs);
[[nodiscard]] AllPatients allPatients(const std::vector<PatientModel>& patients);

} // namespace zel

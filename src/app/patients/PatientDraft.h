#pragma once
// What was typed for a patient and could not be saved, as it is kept until the next start.

#include "app/patients/PatientForm.h"

#include <QJsonObject>

namespace zel {

/// The fields that differ from the record, by their places; "ID" is empty for a new patient.
[[nodiscard]] QJsonObject draftOf(const PatientForm& form, const PatientEntry& entry);
/// Those fields over \p fresh.
[[nodiscard]] PatientEntry typedIn(const QJsonObject& draft, PatientEntry fresh);

} // namespace zel

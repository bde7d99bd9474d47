#pragma once

#include "report/Section.h"
#include "store/DataStore.h"

namespace zel {

/// The name that is proposed for a patient's PDF, as "Smith, Margaret - readings 2026-11-21.pdf". Every file
/// system takes it; of patients with the same name, each has the ID in it as well. That of an invented
/// patient begins with that it is a demonstration.
/// \p today is read in the computer's time zone
[[nodiscard]] QString pdfName(const DataStore& store, const PatientModel& patient, Section section,
                              Instant today);

} // namespace zel

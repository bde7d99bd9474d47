#pragma once
// What resources are called: the same record has the same ID in every export, on every computer, so that who
// takes a second export knows what it has already.

#include "store/PatientModel.h"
#include "store/RecordLinks.h"

#include <QString>
#include <QUuid>

#include <vector>

namespace zel::fhir {

/// Of the patient's ID and day of birth: IDs are short, and two practices may both have a patient "12". A
/// name that is corrected makes nobody else of a patient.
[[nodiscard]] QUuid patientId(const PatientModel& patient, const LocalZone& zone);

/// One for each reading, in their order, of its number: values that are corrected and a reading that is left
/// out stay the same resource. Of several that have one number each has its own.
[[nodiscard]] std::vector<QUuid> readingIds(const QUuid& patient, const ReadingList& readings);

/// Of the average by that rule of the week that ends with that day, both in one text.
[[nodiscard]] QUuid averageId(const QUuid& patient, const QString& week);

[[nodiscard]] QString idText(const QUuid& id);
/// "urn:uuid:...", by which resources of a bundle refer to each other.
[[nodiscard]] QString fullUrl(const QUuid& id);

} // namespace zel::fhir

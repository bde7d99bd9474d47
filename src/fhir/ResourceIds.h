#pragma once
// What resources are called: the same record has the same ID in every export, on every computer, so that who
// takes a second export knows what it has already.

#include "store/PatientModel.h"
#include "store/RecordLinks.h"

#include <QString>
#include <QUuid>

#include <vector>

namespace zel::fhir {

/// Of the patient's ID, day of birth and names: IDs are short, two practices may both have a patient "12",
/// and the day of birth may be missing. Whoever corrects one of them makes another patient of it for who
/// takes the export.
[[nodiscard]] QUuid patientId(const PatientModel& patient, const LocalZone& zone);

/// One for each reading, in their order: of a measured one by its time and values, so that it is the same
/// from every data file that has downloaded it; of a typed one by its time and number, so that corrected
/// values and one that is left out stay the same resource. Of several that are alike each has its own.
[[nodiscard]] std::vector<QUuid> readingIds(const QUuid& patient, const ReadingList& readings);

/// Of the average by that rule of the week that ends with that day, both in one text.
[[nodiscard]] QUuid averageId(const QUuid& patient, const QString& week);

[[nodiscard]] QString idText(const QUuid& id);
/// "urn:uuid:...", by which resources of a bundle refer to each other.
[[nodiscard]] QString fullUrl(const QUuid& id);

} // namespace zel::fhir

#pragma once

#include "fhir/FhirTypes.h"
#include "store/ReadingModel.h"

namespace zel::fhir {

/// A reading as one observation by the profile of a blood pressure. All that was measured at once stands in
/// it as a component, so that what is left out is left out whole.
[[nodiscard]] QJsonObject readingObservation(const ReadingModel& reading, const QUuid& id,
                                             const QUuid& patient, const LocalZone& zone);

} // namespace zel::fhir

#pragma once

#include "analysis/MeasuringWeek.h"
#include "fhir/FhirTypes.h"

#include <optional>
#include <vector>

namespace zel::fhir {

/// The readings of a patient and what each is called in the bundle, in the same order.
struct NamedReadings {
    const ReadingList& readings;
    const std::vector<QUuid>& ids;
};

/// The average of the last measuring week, which refers to the readings that it is made of; none where no
/// reading counts. One that lacks readings by its rule is preliminary.
[[nodiscard]] std::optional<QJsonObject> averageObservation(const NamedReadings& named, AverageRule rule,
                                                            const QUuid& patient, const LocalZone& zone);

} // namespace zel::fhir

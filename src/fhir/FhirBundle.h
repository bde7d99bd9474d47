#pragma once
// A patient and the readings for other programs that keep health records: HL7 FHIR R4. docs/exchange.md has
// what is written where.

#include "analysis/MeasuringWeek.h"
#include "store/PatientModel.h"

#include <QByteArray>

namespace zel::fhir {

struct BundleSource {
    const PatientModel& patient;
    const ReadingList& readings; ///< the patient's, in the file's order, all of them
    AverageRule rule = AverageRule::esh;
    const LocalZone& zone;        ///< whose clocks the times show
    bool isDemonstration = false; ///< all is invented, which bundle and resources say
};

/// A bundle with the patient, each reading, and the average of the last measuring week if there is one, as
/// JSON in UTF-8, each of them on a line of its own. The same data make the same bundle.
[[nodiscard]] QByteArray fhirBundle(const BundleSource& source);

} // namespace zel::fhir

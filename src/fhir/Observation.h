#pragma once
// What all observations have in common.

#include "fhir/FhirTypes.h"

#include <QStringList>

namespace zel::fhir {

/// What an observation is, and of whom.
struct ObservationHead {
    QUuid id;
    QUuid patient;
    const char* profile; ///< the rules that it follows
    const char* status;
    Code code;
};

[[nodiscard]] QJsonObject observation(const ObservationHead& head);

/// Adds what there is; nothing for no notes.
void addNotes(QJsonObject& observation, const QStringList& notes);

inline constexpr Unit millimetresOfMercury{"mmHg", "mm[Hg]"};
inline constexpr Unit beatsPerMinute{"beats/minute", "/min"};

[[nodiscard]] constexpr Code loinc(const char* code, const char* display) {
    return {"http://loinc.org", code, display};
}

} // namespace zel::fhir

#include "fhir/Observation.h"

#include "fhir/ResourceIds.h"

#include <QJsonArray>

namespace zel::fhir {

using namespace Qt::StringLiterals;

namespace {

constexpr Code vitalSigns{"http://terminology.hl7.org/CodeSystem/observation-category", "vital-signs",
                          "Vital Signs"};

} // namespace

QJsonObject observation(const ObservationHead& head) {
    // Who takes a resource in gives it an ID of his own; this one stays with it.
    const QJsonObject identifier{{u"system"_s, u"urn:ietf:rfc:3986"_s}, {u"value"_s, fullUrl(head.id)}};
    return {{u"resourceType"_s, u"Observation"_s},
            {u"id"_s, idText(head.id)},
            {u"meta"_s, QJsonObject{{u"profile"_s, QJsonArray{QLatin1StringView{head.profile}}}}},
            {u"identifier"_s, QJsonArray{identifier}},
            {u"status"_s, QLatin1StringView{head.status}},
            {u"category"_s, QJsonArray{codeableConcept(vitalSigns)}},
            {u"code"_s, codeableConcept(head.code)},
            {u"subject"_s, reference(head.patient)}};
}

void addNotes(QJsonObject& observation, const QStringList& notes) {
    QJsonArray annotations;
    for (const QString& note : notes)
        annotations += annotation(note);
    if (!annotations.isEmpty()) observation[u"note"_s] = annotations;
}

} // namespace zel::fhir

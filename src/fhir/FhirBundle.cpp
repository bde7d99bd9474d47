#include "fhir/FhirBundle.h"

#include "fhir/AverageObservation.h"
#include "fhir/ReadingObservation.h"
#include "fhir/ResourceIds.h"
#include "store/Text.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace zel::fhir {

using namespace Qt::StringLiterals;

namespace {

QJsonObject nameOf(const PatientModel& patient) {
    QJsonObject name;
    if (const QString family = patient.FamilyName.simplified(); !family.isEmpty()) name[u"family"_s] = family;
    const QStringList given = patient.GivenNames.simplified().split(u' ', Qt::SkipEmptyParts);
    if (!given.isEmpty()) name[u"given"_s] = QJsonArray::fromStringList(given);
    return name;
}

QJsonObject patientResource(const PatientModel& patient, const QUuid& id, const LocalZone& zone) {
    QJsonObject made{{u"resourceType"_s, u"Patient"_s},
                     {u"id"_s, idText(id)},
                     {u"gender"_s, patient.Sex == 1 ? u"male"_s : u"female"_s}};
    if (!IsEmptyID(patient.ID.trimmed()))
        made[u"identifier"_s] = QJsonArray{QJsonObject{{u"value"_s, patient.ID}}};
    if (const QJsonObject name = nameOf(patient); !name.isEmpty()) made[u"name"_s] = QJsonArray{name};
    if (const QString birth = dateOfDay(zone.day(patient.DateOfBirth)); !birth.isEmpty())
        made[u"birthDate"_s] = birth;
    return made;
}

/// By which programs that take records in keep invented ones apart from people's.
QJsonObject markedAsTest(QJsonObject meta) {
    constexpr Code test{"http://terminology.hl7.org/CodeSystem/v3-ActReason", "HTEST", "test health data"};
    meta[u"security"_s] = QJsonArray{coding(test)};
    return meta;
}

/// As text at once: as one document, a hundred thousand readings would take a gigabyte and a half.
void addEntry(QByteArray& text, const QUuid& id, QJsonObject resource, bool isTest) {
    if (isTest) resource[u"meta"_s] = markedAsTest(resource[u"meta"_s].toObject());
    const QJsonObject entry{{u"fullUrl"_s, fullUrl(id)}, {u"resource"_s, resource}};
    if (!text.endsWith('[')) text += ',';
    text += '\n' + QJsonDocument{entry}.toJson(QJsonDocument::Compact);
}

} // namespace

QByteArray fhirBundle(const BundleSource& source) {
    const QUuid patient = patientId(source.patient, source.zone);
    const std::vector<QUuid> ids = readingIds(patient, source.readings);
    const bool isTest = source.isDemonstration;
    QByteArray text = R"({"resourceType":"Bundle",)";
    if (isTest) text += R"("meta":)" + QJsonDocument{markedAsTest({})}.toJson(QJsonDocument::Compact) + ',';
    text += R"("type":"collection","entry":[)";
    addEntry(text, patient, patientResource(source.patient, patient, source.zone), isTest);
    for (std::size_t i = 0; i < ids.size(); ++i)
        addEntry(text, ids[i], readingObservation(source.readings[i], ids[i], patient, source.zone), isTest);
    if (const auto average = averageObservation({source.readings, ids}, source.rule, patient, source.zone))
        addEntry(text, QUuid::fromString((*average)[u"id"_s].toString()), *average, isTest);
    return text + "\n]}\n";
}

} // namespace zel::fhir

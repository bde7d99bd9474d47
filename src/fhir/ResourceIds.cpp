#include "fhir/ResourceIds.h"

#include "fhir/FhirTypes.h"

#include <unordered_map>

namespace zel::fhir {

using namespace Qt::StringLiterals;

namespace {

/// Never to be changed: every name follows from it.
constexpr QUuid namesOfZel{0xbb49d4f2, 0xa288, 0x4a42, 0x8a, 0xac, 0x12, 0xdb, 0xf5, 0xce, 0x16, 0x7e};

} // namespace

QUuid patientId(const PatientModel& patient, const LocalZone& zone) {
    // No day has a line end, so that no two patients come to one text.
    return QUuid::createUuidV5(namesOfZel, patient.ID + u'\n' + dateOfDay(zone.day(patient.DateOfBirth)));
}

std::vector<QUuid> readingIds(const QUuid& patient, const ReadingList& readings) {
    std::unordered_map<QString, int> seen;
    std::vector<QUuid> ids;
    ids.reserve(readings.size());
    for (const ReadingModel& reading : readings)
        ids.push_back(
            QUuid::createUuidV5(patient, u"reading %1 %2"_s.arg(++seen[reading.RecID]).arg(reading.RecID)));
    return ids;
}

QUuid averageId(const QUuid& patient, const QString& week) {
    return QUuid::createUuidV5(patient, u"average "_s + week);
}

QString idText(const QUuid& id) { return id.toString(QUuid::WithoutBraces); }

QString fullUrl(const QUuid& id) { return u"urn:uuid:"_s + idText(id); }

} // namespace zel::fhir

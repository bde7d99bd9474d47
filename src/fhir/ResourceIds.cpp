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
    // None of them has a line end, so that no two patients come to one text.
    return QUuid::createUuidV5(namesOfZel, patient.ID + u'\n' + dateOfDay(zone.day(patient.DateOfBirth))
                                               + u'\n' + patient.FamilyName + u'\n' + patient.GivenNames);
}

std::vector<QUuid> readingIds(const QUuid& patient, const ReadingList& readings) {
    // Every data file numbers its readings from the same number on.
    const auto nameOf = [](const ReadingModel& reading) {
        const QString time =
            QString::number(reading.ReadingDate ? reading.ReadingDate->time_since_epoch().count() : 0);
        if (reading.isManual) return u"typed %1 %2"_s.arg(time, reading.RecID.text());
        return u"measured %1 %2/%3/%4"_s.arg(time).arg(reading.sys).arg(reading.dia).arg(reading.pulse);
    };
    std::unordered_map<QString, int> seen;
    std::vector<QUuid> ids;
    ids.reserve(readings.size());
    for (const ReadingModel& reading : readings) {
        const QString name = nameOf(reading);
        ids.push_back(QUuid::createUuidV5(patient, u"%1 %2"_s.arg(name).arg(++seen[name])));
    }
    return ids;
}

QUuid averageId(const QUuid& patient, const QString& week) {
    return QUuid::createUuidV5(patient, u"average "_s + week);
}

QString idText(const QUuid& id) { return id.toString(QUuid::WithoutBraces); }

QString fullUrl(const QUuid& id) { return u"urn:uuid:"_s + idText(id); }

} // namespace zel::fhir

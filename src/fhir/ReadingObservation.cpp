#include "fhir/ReadingObservation.h"

#include "analysis/ReadingSelection.h"
#include "fhir/Observation.h"
#include "store/RecordXml.h"

#include <QJsonArray>

#include <array>

namespace zel::fhir {

using namespace Qt::StringLiterals;

namespace {

/// One of the values of a reading.
struct Measure {
    std::uint32_t ReadingModel::*value;
    Code code;
    Unit unit;
};
constexpr std::array measures{
    Measure{&ReadingModel::sys, loinc("8480-6", "Systolic blood pressure"), millimetresOfMercury},
    Measure{&ReadingModel::dia, loinc("8462-4", "Diastolic blood pressure"), millimetresOfMercury},
    Measure{&ReadingModel::map, loinc("8478-0", "Mean blood pressure"), millimetresOfMercury},
    Measure{&ReadingModel::pulse, loinc("8867-4", "Heart rate"), beatsPerMinute},
};

QJsonObject componentOf(const ReadingModel& reading, const Measure& measure) {
    const std::uint32_t value = reading.*measure.value;
    QJsonObject component{{u"code"_s, codeableConcept(measure.code)}};
    const bool isError = reading.erorr != 0 || value != 0;
    if (isMeasured(value))
        component[u"valueQuantity"_s] = quantity(static_cast<qint64>(value), measure.unit);
    else
        component[u"dataAbsentReason"_s] = dataAbsentReason(isError ? Absence::error : Absence::unknown);
    return component;
}

/// What the monitor looked for, whether it found it or not.
QJsonObject finding(const QString& what, bool isFound) {
    return {{u"code"_s, codeableConcept(what)}, {u"valueBoolean"_s, isFound}};
}

QJsonArray componentsOf(const ReadingModel& reading) {
    QJsonArray components;
    for (const Measure& measure : measures)
        components += componentOf(reading, measure);
    constexpr std::uint32_t padFound = 2;
    constexpr std::uint32_t afibFound = 5;
    if (reading.isPad())
        components += finding(u"Irregular pulse (pulse arrhythmia detection) flagged by the monitor"_s,
                              reading.Arrhythmia == padFound);
    if (reading.isAFib())
        components +=
            finding(u"Atrial fibrillation (AFib) flagged by the monitor"_s, reading.Arrhythmia == afibFound);
    return components;
}

/// In fixed words: what is exported is in no user's language.
QStringList notesOf(const ReadingModel& reading) {
    QStringList notes;
    if (reading.isExcluded()) {
        const QString reason = reading.exclusion.simplified();
        notes += u"left out of all that counts, "_s
                 + (reason.isEmpty() ? u"without a reason"_s : u"reason: "_s + reason);
    }
    if (reading.erorr != 0) notes += u"error code of the monitor: "_s + toDecimal(reading.erorr);
    for (const Measure& measure : measures) {
        const std::uint32_t value = reading.*measure.value;
        if (value != 0 && !isMeasured(value))
            notes += u"%1: the number on record, %2, is none that was measured"_s.arg(
                QLatin1StringView{measure.code.display}, toDecimal(value));
    }
    return notes;
}

QString methodOf(const ReadingModel& reading) {
    QStringList methods;
    if (reading.isManual) methods += u"typed in by hand"_s;
    if (reading.mam == 1) methods += u"average of several measurements, made by the monitor (MAM)"_s;
    return methods.join(u"; "_s);
}

/// The profile asks for a time; where there is none, it says so in the time's place.
void addTime(QJsonObject& observation, const ReadingModel& reading, const LocalZone& zone) {
    const QString time =
        reading.isUndated() ? QString{} : dateTime(*reading.ReadingDate, zone, reading.utcOffset);
    if (time.isEmpty())
        observation[u"_effectiveDateTime"_s] = absentExtension(Absence::unknown);
    else
        observation[u"effectiveDateTime"_s] = time;
}

} // namespace

QJsonObject readingObservation(const ReadingModel& reading, const QUuid& id, const QUuid& patient,
                               const LocalZone& zone) {
    QJsonObject made =
        observation({.id = id,
                     .patient = patient,
                     .profile = "http://hl7.org/fhir/StructureDefinition/bp",
                     .status = reading.isExcluded() ? "entered-in-error" : "final",
                     .code = loinc("85354-9", "Blood pressure panel with all children optional")});
    addTime(made, reading, zone);
    addNotes(made, notesOf(reading));
    if (const QString method = methodOf(reading); !method.isEmpty())
        made[u"method"_s] = codeableConcept(method);
    made[u"component"_s] = componentsOf(reading);
    return made;
}

} // namespace zel::fhir

#include "fhir/AverageObservation.h"

#include "fhir/Observation.h"
#include "fhir/ResourceIds.h"

#include <QJsonArray>

#include <algorithm>

namespace zel::fhir {

using namespace Qt::StringLiterals;

namespace {

QString ruleName(AverageRule rule) { return QString::fromLatin1(factsOf(rule).key).toUpper(); }

QJsonObject meanComponent(const Code& code, const ExactMean& mean) {
    return {{u"code"_s, codeableConcept(code)},
            {u"valueQuantity"_s, quantity(mean.withTenths().toDouble(), millimetresOfMercury)}};
}

void addMissingCount(QStringList& missing, const QString& what, int count) {
    if (count > 0) missing += what + u' ' + QString::number(count);
}

void addCount(QStringList& notes, const QString& what, int count) {
    if (count > 0) notes += what + u": "_s + QString::number(count);
}

/// In fixed words: what is exported is in no user's language.
QStringList averageNotes(const MeasuringWeek& week) {
    QStringList notes{
        u"Mean of %1 readings on %2 days, measuring week %3 to %4, rule %5"_s.arg(week.readingsUsed())
            .arg(week.daysUsed)
            .arg(dateOfDay(week.begin), dateOfDay(week.end), ruleName(week.rule))};
    if (week.all.pulse.count() > 0) notes.back() += u"; mean pulse %1/min"_s.arg(week.all.pulse.withTenths());
    QStringList missing;
    addMissingCount(missing, u"days"_s, week.missingDays);
    addMissingCount(missing, u"readings"_s, week.missingReadings);
    addMissingCount(missing, u"morning readings"_s, week.missingMornings);
    addMissingCount(missing, u"evening readings"_s, week.missingEvenings);
    if (!missing.isEmpty()) notes += u"Incomplete by the rule; missing: "_s + missing.join(u", "_s);
    addCount(notes, u"Readings of the first measuring day, which do not count by the rule"_s,
             week.readingsLeftOut);
    addCount(notes, u"Readings of the week that are left out"_s, week.excluded);
    addCount(notes, u"Readings of later days that are left out"_s, week.excludedLater);
    addCount(notes, u"Readings without pressures, which do not count"_s, week.unmeasured);
    addCount(notes, u"Readings of the week that were stored in another time zone"_s, week.ofOtherZone);
    return notes;
}

/// From the first to the last of the readings that count.
QJsonObject periodOf(const std::vector<Instant>& times, const LocalZone& zone) {
    const auto [first, last] = std::ranges::minmax(times);
    QJsonObject period{{u"start"_s, dateTime(first, zone)}, {u"end"_s, dateTime(last, zone)}};
    for (const QString& end : period.keys()) // a year without four digits
        if (period[end].toString().isEmpty()) period.remove(end);
    return period;
}

void addSources(QJsonObject& average, const MeasuringWeek& week, const NamedReadings& named,
                const LocalZone& zone) {
    QJsonArray sources;
    std::vector<Instant> times;
    times.reserve(week.readingsUsed());
    for (std::size_t i = 0; i < named.readings.size(); ++i) {
        if (!isUsed(named.readings[i], week)) continue;
        sources += reference(named.ids[i]);
        times.push_back(*named.readings[i].ReadingDate);
    }
    average[u"derivedFrom"_s] = sources;
    const QJsonObject period = periodOf(times, zone);
    if (period.isEmpty())
        average[u"_effectiveDateTime"_s] = absentExtension(Absence::unknown);
    else
        average[u"effectivePeriod"_s] = period;
}

} // namespace

std::optional<QJsonObject> averageObservation(const NamedReadings& named, AverageRule rule,
                                              const QUuid& patient, const LocalZone& zone) {
    const MeasuringWeek week = calcMeasuringWeek(named.readings, rule);
    if (week.readingsUsed() == 0) return std::nullopt;
    QJsonObject made =
        observation({.id = averageId(patient, ruleName(rule) + u' ' + dateOfDay(week.end)),
                     .patient = patient,
                     .profile = "http://hl7.org/fhir/StructureDefinition/vitalsigns",
                     .status = week.isComplete() ? "final" : "preliminary",
                     .code = loinc("96607-7", "Blood pressure panel mean systolic and mean diastolic")});
    addSources(made, week, named, zone);
    addNotes(made, averageNotes(week));
    made[u"method"_s] =
        codeableConcept(u"average of a week of home readings by the rule "_s + ruleName(rule));
    made[u"component"_s] =
        QJsonArray{meanComponent(loinc("96608-5", "Systolic blood pressure mean"), week.all.sys),
                   meanComponent(loinc("96609-3", "Diastolic blood pressure mean"), week.all.dia)};
    return made;
}

} // namespace zel::fhir

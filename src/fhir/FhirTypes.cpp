#include "fhir/FhirTypes.h"

#include "fhir/ResourceIds.h"

#include <QJsonArray>

#include <chrono>

namespace zel::fhir {

using namespace Qt::StringLiterals;
using std::chrono::floor;
using std::chrono::minutes;

namespace {

constexpr Code absenceCode(Absence why) {
    constexpr const char* system = "http://terminology.hl7.org/CodeSystem/data-absent-reason";
    return why == Absence::error ? Code{system, "error", "Error"} : Code{system, "unknown", "Unknown"};
}

bool hasFourDigits(std::chrono::year year) { return 1 <= int{year} && int{year} <= 9999; }

std::chrono::year_month_day civilDay(std::chrono::sys_days day) { return std::chrono::year_month_day{day}; }

QString dayOf(const std::chrono::year_month_day& day) {
    return QString::asprintf("%04d-%02u-%02u", int{day.year()}, unsigned{day.month()}, unsigned{day.day()});
}

/// Offsets of the times before time zones have seconds, and some were larger than any is today.
minutes writableOffset(Instant date, const LocalZone& zone, std::int16_t stored) {
    constexpr minutes largest = std::chrono::hours{14};
    const minutes offset =
        stored == ReadingModel::noOffset ? floor<minutes>(*zone.wallClock(date) - date) : minutes{stored};
    const auto year = civilDay(floor<std::chrono::days>(date + offset)).year();
    return std::chrono::abs(offset) <= largest && hasFourDigits(year) ? offset : minutes{0};
}

QString offsetText(minutes offset) {
    const std::chrono::hh_mm_ss parts{std::chrono::abs(offset)};
    return QString::asprintf("%c%02d:%02d", offset < minutes{0} ? '-' : '+',
                             static_cast<int>(parts.hours().count()),
                             static_cast<int>(parts.minutes().count()));
}

} // namespace

QJsonObject coding(const Code& code) {
    return {{u"system"_s, QLatin1StringView{code.system}},
            {u"code"_s, QLatin1StringView{code.code}},
            {u"display"_s, QLatin1StringView{code.display}}};
}

QJsonObject codeableConcept(const Code& code) { return {{u"coding"_s, QJsonArray{coding(code)}}}; }

QJsonObject codeableConcept(const QString& text) { return {{u"text"_s, text}}; }

QJsonObject quantity(const QJsonValue& value, const Unit& unit) {
    return {{u"value"_s, value},
            {u"unit"_s, QLatin1StringView{unit.unit}},
            {u"system"_s, u"http://unitsofmeasure.org"_s},
            {u"code"_s, QLatin1StringView{unit.code}}};
}

QJsonObject annotation(const QString& text) { return {{u"text"_s, text}}; }

QJsonObject reference(const QUuid& id) { return {{u"reference"_s, fullUrl(id)}}; }

QJsonObject dataAbsentReason(Absence why) { return codeableConcept(absenceCode(why)); }

QJsonObject absentExtension(Absence why) {
    const QJsonObject extension{{u"url"_s, u"http://hl7.org/fhir/StructureDefinition/data-absent-reason"_s},
                                {u"valueCode"_s, QLatin1StringView{absenceCode(why).code}}};
    return {{u"extension"_s, QJsonArray{extension}}};
}

QString dateTime(Instant date, const LocalZone& zone, std::int16_t storedOffset) {
    const minutes offset = writableOffset(date, zone, storedOffset);
    const Instant shown = date + offset;
    const auto midnight = floor<std::chrono::days>(shown);
    const auto day = civilDay(midnight);
    if (!hasFourDigits(day.year())) return {};
    const std::chrono::hh_mm_ss time{floor<std::chrono::seconds>(shown - midnight)};
    const QString clock =
        QString::asprintf("T%02d:%02d:%02d", static_cast<int>(time.hours().count()),
                          static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()));
    return dayOf(day) + clock + offsetText(offset);
}

QString dateOfDay(DayNumber day) {
    if (isNilDay(day)) return {};
    const auto civil = civilDay(std::chrono::sys_days{std::chrono::days{day}});
    return hasFourDigits(civil.year()) ? dayOf(civil) : QString{};
}

} // namespace zel::fhir

#pragma once
// The data types that the resources are made of, as JSON; docs/exchange.md says what is written where. What a
// record does not have is left out by the callers: nothing here is ever empty.

#include "store/Dates.h"
#include "store/ReadingModel.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QUuid>

namespace zel::fhir {

/// A code of a code system, by which programs tell things apart, and the words that the system has for it.
struct Code {
    const char* system;
    const char* code;
    const char* display;
};

/// A unit as people read it, and its code in UCUM.
struct Unit {
    const char* unit;
    const char* code;
};

[[nodiscard]] QJsonObject coding(const Code& code);
[[nodiscard]] QJsonObject codeableConcept(const Code& code);
/// Where no code system has a code that says just this.
[[nodiscard]] QJsonObject codeableConcept(const QString& text);
[[nodiscard]] QJsonObject quantity(const QJsonValue& value, const Unit& unit);
[[nodiscard]] QJsonObject annotation(const QString& text);
/// To a resource of the same bundle.
[[nodiscard]] QJsonObject reference(const QUuid& id);

enum class Absence { unknown, error };
/// Why there is no value, as an element of an observation has it.
[[nodiscard]] QJsonObject dataAbsentReason(Absence why);
/// The same as an extension, which takes the place of an element that may not be missing.
[[nodiscard]] QJsonObject absentExtension(Absence why);

/// "2026-11-21T07:12:00+01:00": what the clocks showed there, and how far they were ahead of UTC, \p
/// storedOffset minutes or, where that is not known, as in the zone; in UTC where the form cannot hold that.
/// A null text for a year that has no four digits.
[[nodiscard]] QString dateTime(Instant date, const LocalZone& zone,
                               std::int16_t storedOffset = ReadingModel::noOffset);
/// "1956-03-02"; a null text as for dateTime(), and for a day that stands for none.
[[nodiscard]] QString dateOfDay(DayNumber day);

} // namespace zel::fhir

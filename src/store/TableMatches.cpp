#include "store/TableMatches.h"

#include "store/DocumentElements.h"
#include "store/NewReadings.h"

#include <map>
#include <tuple>

namespace zel {

namespace {

/// What a reading that was typed in is known by, as where one is typed in the window.
using TypedKey = std::tuple<Date, std::uint32_t, std::uint32_t, std::uint32_t>;

TypedKey typedKey(const ReadingModel& reading, const LocalZone& zone) {
    const bool isUndated = isUndatedDay(zone.day(reading.ReadingDate));
    const Date minute =
        isUndated ? Date{} : Date{Instant{std::chrono::floor<std::chrono::minutes>(*reading.ReadingDate)}};
    return {minute, reading.sys, reading.dia, reading.pulse};
}

} // namespace

TableMatches::TableMatches(pugi::xml_node root, const TablePatient& patient, bool isForeign)
    : fresh(patient.readings.size(), false) {
    markMeasured(root, patient);
    markTyped(root, patient, isForeign);
}

void TableMatches::markMeasured(pugi::xml_node root, const TablePatient& patient) {
    ReadingList measured;
    measured.reserve(patient.readings.size());
    for (std::size_t i = 0; i < patient.readings.size(); ++i) {
        if (patient.readings[i].isManual) continue;
        measured.push_back(patient.readings[i]);
        measured.back().RecID = QString::number(i); // to be found by, among those that are new
    }
    const ReadingList notStored = newReadings(root, patient.ID, std::move(measured));
    for (const ReadingModel& reading : notStored)
        fresh[reading.RecID.text().toULongLong()] = true;
}

void TableMatches::markTyped(pugi::xml_node root, const TablePatient& patient, bool isForeign) {
    const LocalZone zone;
    std::map<TypedKey, std::size_t> stored;
    for (const pugi::xml_node node : root.children()) {
        if (isElement(node, "MeasureRec") && childText(node, "ID") == patient.ID)
            ++stored[typedKey(ReadingModel::initWithXMLNode(node), zone)];
    }
    for (std::size_t i = 0; i < fresh.size(); ++i) {
        if (!patient.readings[i].isManual) continue;
        std::size_t& alike = stored[typedKey(patient.readings[i], zone)];
        fresh[i] = alike == 0;
        if (isForeign)
            ++alike;
        else if (alike > 0)
            --alike;
    }
}

} // namespace zel

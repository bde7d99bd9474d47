#include "store/ReadingsBefore.h"

#include "store/DocumentElements.h"
#include "store/NewReadings.h"
#include "store/Records.h"

namespace zel {

ReadingsBefore::ReadingsBefore(pugi::xml_node root) {
    for (const pugi::xml_node node : root.children()) {
        if (!isElement(node, "MeasureRec")) continue;
        const auto reading = ReadingModel::initWithXMLNode(node);
        numbers.emplace(reading.ID, reading.RecID);
        if (!reading.isExcluded()) addCounting(reading);
    }
}

void ReadingsBefore::addCounting(const ReadingModel& reading) {
    if (!reading.ReadingDate) return;
    counting.insert(likeness(reading, *reading.ReadingDate));
    if (!reading.isManual) measured.insert(likeness(reading, *wallClockOf(reading, zone)));
}

void ReadingsBefore::removeCounting(const ReadingModel& reading) {
    if (!reading.ReadingDate) return;
    counting.extract(likeness(reading, *reading.ReadingDate)); // of equal ones only one
    if (!reading.isManual) measured.extract(likeness(reading, *wallClockOf(reading, zone)));
}

bool ReadingsBefore::hasCounting(const ReadingModel& reading) const {
    return reading.ReadingDate
           && (counting.contains(likeness(reading, *reading.ReadingDate))
               || measured.contains(likeness(reading, *wallClockOf(reading, zone))));
}

bool ReadingsBefore::hasNumber(const ReadingModel& reading) const {
    return numbers.contains({reading.ID, reading.RecID});
}

ReadingsBefore::Likeness ReadingsBefore::likeness(const ReadingModel& reading, Instant time) {
    const Instant minute{std::chrono::floor<std::chrono::minutes>(time)};
    return {reading.ID, minute, reading.sys, reading.dia, reading.pulse};
}

QString freeReadingNumber(pugi::xml_node root) {
    constexpr auto kind = Records::Counter::reading;
    Records counters;
    for (const pugi::xml_node node : root.children()) {
        if (isElement(node, "MeasureRec")) counters.countID(kind, childText(node, "RecID"));
    }
    return counters.getMaxID(kind);
}

} // namespace zel

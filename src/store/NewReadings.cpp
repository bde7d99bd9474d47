#include "store/NewReadings.h"

#include "store/DocumentElements.h"
#include "store/ManualReading.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace zel {

namespace {

/// One time for all readings without a date.
struct Likeness {
    Date time;
    ReadingModel::Values values;
    // NOLINTNEXTLINE(modernize-use-nullptr): clang-tidy 14 takes the comparison with 0 for a pointer's
    auto operator<=>(const Likeness&) const = default;
};

Likeness likeness(const ReadingModel& reading, const Date& time, const LocalZone& zone) {
    return {isNilDay(zone.day(reading.ReadingDate)) ? Date{} : time, reading.values()};
}

/// What a reading that was typed in has of one: minute and the three values that the monitor shows. None
/// without a date.
std::optional<Likeness> shownLikeness(const ReadingModel& reading, const Date& time, const LocalZone& zone) {
    if (!time || isUndatedDay(zone.day(reading.ReadingDate))) return std::nullopt;
    return Likeness{Date{Instant{std::chrono::floor<std::chrono::minutes>(*time)}},
                    {0, reading.pulse, reading.dia, reading.sys}};
}

/// What the file shows, whatever zone it was written in.
Date wallClockOf(pugi::xml_node element) {
    const QByteArray date = childText(element, "ReadingDate").toUtf8();
    return XMLStrToWallClock({date.constData(), static_cast<std::size_t>(date.size())});
}

bool isReadingForID(pugi::xml_node element, const QString& ID) {
    return isElement(element, "MeasureRec") && childText(element, "ID") == ID;
}

/// Pressures and pulses that are looked for. Of a patient's many readings few have one, and only these need
/// be read with their dates, which takes several times as long.
class SoughtValues {
public:
    explicit SoughtValues(const ReadingList& readings) {
        for (const ReadingModel& reading : readings)
            keys.insert(key(reading.sys, reading.dia, reading.pulse));
    }
    /// True for some others as well.
    [[nodiscard]] bool mayHaveThoseOf(pugi::xml_node element) const {
        std::string scratch;
        const auto value = [element, &scratch](const char* name) {
            return toUnsigned(elementText(firstElement(element, name), scratch));
        };
        return keys.contains(key(value("Sys"), value("Dia"), value("Pulse")));
    }

private:
    static std::uint64_t key(std::uint64_t sys, std::uint64_t dia, std::uint64_t pulse) {
        return sys << 40U ^ dia << 20U ^ pulse;
    }
    std::unordered_set<std::uint64_t> keys;
};

/// Readings of which each stands for one other that is alike: those that no other one has been found for yet.
class UnmatchedReadings {
public:
    void add(const Likeness& wall, const Likeness& instant) {
        byWall[wall].push_back(isMatched.size());
        byInstant[instant].push_back(isMatched.size());
        isMatched.push_back(false);
    }
    bool matchWall(const Likeness& wanted) { return match(byWall, wanted); }
    bool matchInstant(const Likeness& wanted) { return match(byInstant, wanted); }

private:
    using Index = std::map<Likeness, std::vector<std::size_t>>;
    bool match(Index& index, const Likeness& wanted) {
        const auto alike = index.find(wanted);
        if (alike == index.end()) return false;
        for (auto& places = alike->second; !places.empty();) {
            const std::size_t place = places.back();
            places.pop_back();
            if (isMatched[place]) continue;
            isMatched[place] = true;
            return true;
        }
        return false;
    }
    Index byWall;
    Index byInstant;
    std::vector<bool> isMatched;
};

/// The stored readings, but for those that none of the download can be.
UnmatchedReadings storedReadings(pugi::xml_node root, const QString& ID, const SoughtValues& sought,
                                 const LocalZone& zone) {
    UnmatchedReadings stored;
    for (const pugi::xml_node element : root.children()) {
        if (!sought.mayHaveThoseOf(element) || !isReadingForID(element, ID)) continue;
        const auto reading = ReadingModel::initWithXMLNode(element);
        if (reading.isManual) continue; // stands for nothing measured
        stored.add(likeness(reading, wallClockOf(element), zone),
                   likeness(reading, reading.ReadingDate, zone));
    }
    return stored;
}

/// What is shown of the readings that have a date.
UnmatchedReadings shownReadings(const ReadingList& measured, const LocalZone& zone) {
    UnmatchedReadings shown;
    for (const ReadingModel& reading : measured) {
        const auto wall = shownLikeness(reading, wallClockOf(reading, zone), zone);
        const auto instant = shownLikeness(reading, reading.ReadingDate, zone);
        if (wall && instant) shown.add(*wall, *instant);
    }
    return shown;
}

/// A typed reading that counts, and what it shows.
struct TypedElement {
    pugi::xml_node element;
    Likeness wall;
    Likeness instant;
};

std::vector<TypedElement> typedElements(pugi::xml_node root, const QString& ID, const SoughtValues& sought,
                                        const LocalZone& zone) {
    std::vector<TypedElement> typed;
    for (const pugi::xml_node element : root.children()) {
        if (!sought.mayHaveThoseOf(element) || !isReadingForID(element, ID)) continue;
        const auto reading = ReadingModel::initWithXMLNode(element);
        if (!reading.isManual || reading.isExcluded()) continue;
        const auto wall = shownLikeness(reading, wallClockOf(element), zone);
        const auto instant = shownLikeness(reading, reading.ReadingDate, zone);
        if (wall && instant) typed.push_back({element, *wall, *instant});
    }
    return typed;
}

} // namespace

Date wallClockOf(const ReadingModel& reading, const LocalZone& zone) {
    if (!reading.ReadingDate || reading.utcOffset == ReadingModel::noOffset)
        return zone.wallClock(reading.ReadingDate);
    return *reading.ReadingDate + std::chrono::minutes{reading.utcOffset};
}

ReadingList newReadings(pugi::xml_node root, const QString& ID, ReadingList downloaded) {
    const LocalZone zone;
    UnmatchedReadings stored = storedReadings(root, ID, SoughtValues{downloaded}, zone);
    // What the clock showed first: after a change of zone, one reading's instant may be another one's.
    std::erase_if(downloaded, [&](const ReadingModel& reading) {
        return stored.matchWall(likeness(reading, wallClockOf(reading, zone), zone));
    });
    std::erase_if(downloaded, [&](const ReadingModel& reading) {
        return stored.matchInstant(likeness(reading, reading.ReadingDate, zone));
    });
    return downloaded;
}

std::vector<pugi::xml_node> typedMeanwhileMeasured(pugi::xml_node root, const QString& ID,
                                                   const ReadingList& measured) {
    const LocalZone zone;
    UnmatchedReadings shown = shownReadings(measured, zone);
    std::vector<TypedElement> typed = typedElements(root, ID, SoughtValues{measured}, zone);
    std::vector<pugi::xml_node> found;
    const auto take = [&](const auto& isMatched) {
        std::erase_if(typed, [&](const TypedElement& each) {
            const bool isTaken = isMatched(each);
            if (isTaken) found.push_back(each.element);
            return isTaken;
        });
    };
    take([&](const TypedElement& each) { return shown.matchWall(each.wall); }); // as above
    take([&](const TypedElement& each) { return shown.matchInstant(each.instant); });
    return found;
}

void leaveOutAsMeasured(pugi::xml_node element) {
    const auto before = ReadingModel::initWithXMLNode(element);
    ReadingModel excluded = before;
    excluded.exclusion = measuredReason.toString();
    excluded.changeXMLNode(element, before);
}

} // namespace zel

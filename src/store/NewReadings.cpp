#include "store/NewReadings.h"

#include "store/DocumentElements.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <unordered_set>

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

/// What the clocks showed there, if that is known, and else here.
Date wallClockOf(const ReadingModel& reading, const LocalZone& zone) {
    if (!reading.ReadingDate || reading.utcOffset == ReadingModel::noOffset)
        return zone.wallClock(reading.ReadingDate);
    return *reading.ReadingDate + std::chrono::minutes{reading.utcOffset};
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

/// The stored readings that no reading of the download has been found to be yet, but for those that none can
/// be.
class UnmatchedReadings {
public:
    UnmatchedReadings(pugi::xml_node root, const QString& ID, const SoughtValues& sought,
                      const LocalZone& zone) {
        for (const pugi::xml_node element : root.children()) {
            if (!sought.mayHaveThoseOf(element) || !isReadingForID(element, ID)) continue;
            const auto reading = ReadingModel::initWithXMLNode(element);
            if (reading.isManual) continue; // stands for nothing measured
            byWall[likeness(reading, wallClockOf(element), zone)].push_back(isMatched.size());
            byInstant[likeness(reading, reading.ReadingDate, zone)].push_back(isMatched.size());
            isMatched.push_back(false);
        }
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

} // namespace

ReadingList newReadings(pugi::xml_node root, const QString& ID, ReadingList downloaded) {
    const LocalZone zone;
    UnmatchedReadings stored{root, ID, SoughtValues{downloaded}, zone};
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
    std::set<Likeness> byWall;
    std::set<Likeness> byInstant;
    for (const ReadingModel& reading : measured) {
        if (const auto wall = shownLikeness(reading, wallClockOf(reading, zone), zone)) byWall.insert(*wall);
        if (const auto instant = shownLikeness(reading, reading.ReadingDate, zone))
            byInstant.insert(*instant);
    }
    const SoughtValues sought{measured};
    std::vector<pugi::xml_node> found;
    for (const pugi::xml_node element : root.children()) {
        if (!sought.mayHaveThoseOf(element) || !isReadingForID(element, ID)) continue;
        const auto reading = ReadingModel::initWithXMLNode(element);
        if (!reading.isManual || reading.isExcluded()) continue;
        const auto instant = shownLikeness(reading, reading.ReadingDate, zone);
        const auto wall = shownLikeness(reading, wallClockOf(element), zone);
        if ((instant && byInstant.contains(*instant)) || (wall && byWall.contains(*wall)))
            found.push_back(element);
    }
    return found;
}

} // namespace zel

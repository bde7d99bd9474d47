#include "store/NewReadings.h"

#include "store/DocumentElements.h"

#include <algorithm>
#include <map>

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

/// What a reading that was typed in has of one: minute and the three values that the monitor shows.
Likeness shownLikeness(const ReadingModel& reading, const Date& time) {
    const auto minute = [](Instant at) { return Instant{std::chrono::floor<std::chrono::minutes>(at)}; };
    return {time ? Date{minute(*time)} : time, {0, reading.pulse, reading.dia, reading.sys}};
}

/// The monitor found an irregular heartbeat, which nobody types in.
bool hasFinding(const ReadingModel& reading) { return reading.Arrhythmia == 2 || reading.Arrhythmia == 5; }

/// The stored readings that no reading of the download has been found to be yet.
class UnmatchedReadings {
public:
    UnmatchedReadings(pugi::xml_node root, const QString& ID, const LocalZone& zone) {
        for (const pugi::xml_node element : root.children()) {
            if (!isElement(element, "MeasureRec") || childText(element, "ID") != ID) continue;
            const auto reading = ReadingModel::initWithXMLNode(element);
            const QByteArray date = childText(element, "ReadingDate").toUtf8();
            const Date wall = XMLStrToWallClock({date.constData(), static_cast<std::size_t>(date.size())});
            byWall[likeness(reading, wall, zone)].push_back(isMatched.size());
            byInstant[likeness(reading, reading.ReadingDate, zone)].push_back(isMatched.size());
            if (reading.isManual) {
                typedByWall[shownLikeness(reading, wall)].push_back(isMatched.size());
                typedByInstant[shownLikeness(reading, reading.ReadingDate)].push_back(isMatched.size());
            }
            isMatched.push_back(false);
        }
    }
    bool matchWall(const Likeness& wanted) { return match(byWall, wanted); }
    bool matchInstant(const Likeness& wanted) { return match(byInstant, wanted); }
    bool matchTyped(const Likeness& wall, const Likeness& instant) {
        return match(typedByWall, wall) || match(typedByInstant, instant);
    }

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
    Index typedByWall;
    Index typedByInstant;
    std::vector<bool> isMatched;
};

} // namespace

ReadingList newReadings(pugi::xml_node root, const QString& ID, ReadingList downloaded) {
    const LocalZone zone;
    UnmatchedReadings stored{root, ID, zone};
    // What the clock showed first: after a change of zone, one reading's instant may be another one's.
    std::erase_if(downloaded, [&](const ReadingModel& reading) {
        return stored.matchWall(likeness(reading, zone.wallClock(reading.ReadingDate), zone));
    });
    std::erase_if(downloaded, [&](const ReadingModel& reading) {
        return stored.matchInstant(likeness(reading, reading.ReadingDate, zone));
    });
    std::erase_if(downloaded, [&](const ReadingModel& reading) {
        return !hasFinding(reading)
               && stored.matchTyped(shownLikeness(reading, zone.wallClock(reading.ReadingDate)),
                                    shownLikeness(reading, reading.ReadingDate));
    });
    return downloaded;
}

} // namespace zel

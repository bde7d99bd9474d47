#pragma once

#include "store/ReadingModel.h"

#include <QString>

#include <pugixml.hpp>

#include <cstdint>
#include <set>
#include <tuple>
#include <utility>

namespace zel {

/// The readings that a document holds before a step is taken back or made again, or before some are taken in.
class ReadingsBefore {
public:
    explicit ReadingsBefore(pugi::xml_node root);
    /// One of the patient's that counts has the minute, the pressures and the pulse: both would count. For
    /// one that was measured that is also the minute that the monitor's clock showed.
    [[nodiscard]] bool hasCounting(const ReadingModel& reading) const;
    /// One of the patient's has the number.
    [[nodiscard]] bool hasNumber(const ReadingModel& reading) const;
    /// From now on this one counts, too.
    void addCounting(const ReadingModel& reading);
    /// One that counted does not any more.
    void removeCounting(const ReadingModel& reading);

private:
    using Likeness = std::tuple<QString, Date, std::uint32_t, std::uint32_t, std::uint32_t>;
    static Likeness likeness(const ReadingModel& reading, Instant time);

    LocalZone zone;
    std::multiset<Likeness> counting;
    std::multiset<Likeness> measured; ///< of these, by what the monitor's clock showed
    std::set<std::pair<QString, QString>> numbers;
};

/// The first number that no reading of the document has, nor any of a larger number.
[[nodiscard]] QString freeReadingNumber(pugi::xml_node root);

} // namespace zel

#pragma once
// Which readings of a download are not stored yet.

#include "store/RecordLinks.h"

#include <QString>

#include <pugixml.hpp>

#include <vector>

namespace zel {

/// What the clocks showed where the reading was stored, if that is known, and else what they showed here. As
/// an instant would be in UTC; none without a date.
[[nodiscard]] Date wallClockOf(const ReadingModel& reading, const LocalZone& zone);

/// Those of \p downloaded that the patient with that ID does not have below \p root, in their order. A
/// reading is stored if one with equal values is of the same instant or shows the same date and time in its
/// text: the monitor's clock knows no time zone. One that was typed in stands for none. Each stored reading
/// stands for one of the download, so that of two equal ones the second is new when one is stored.
[[nodiscard]] ReadingList newReadings(pugi::xml_node root, const QString& ID, ReadingList downloaded);

/// The patient's typed readings that count, and that have minute, pressures and pulse of one of those
/// \p measured: they were typed off the monitor, and would count twice.
[[nodiscard]] std::vector<pugi::xml_node> typedMeanwhileMeasured(pugi::xml_node root, const QString& ID,
                                                                 const ReadingList& measured);
/// Leaves the reading of the element out, with measuredReason.
void leaveOutAsMeasured(pugi::xml_node element);

} // namespace zel

#pragma once
// Which readings of a table a patient does not have yet.

#include "store/ReadingTable.h"

#include <pugixml.hpp>

#include <cstddef>
#include <vector>

namespace zel {

class TableMatches {
public:
    /// Compares with the patient's readings below \p root. One that was measured is known as in a download;
    /// one that was typed in by its minute, pressures and pulse. Of equal ones each stored reading stands for
    /// one, but in another program's table (\p isForeign), which may have a line twice.
    TableMatches(pugi::xml_node root, const TablePatient& patient, bool isForeign);
    /// The patient's reading at that place in the table.
    [[nodiscard]] bool isNew(std::size_t place) const { return fresh[place]; }

private:
    void markMeasured(pugi::xml_node root, const TablePatient& patient);
    void markTyped(pugi::xml_node root, const TablePatient& patient, bool isForeign);

    std::vector<bool> fresh;
};

} // namespace zel

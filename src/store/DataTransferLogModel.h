#pragma once

#include "store/Dates.h"

#include <QString>

#include <pugixml.hpp>

#include <cstdint>

namespace zel {

/// One download of readings from the monitor.
struct DataTransferLogModel {
    QString ID;    ///< the patient whose readings were downloaded
    QString RecID; ///< from the counter of download-log entries
    Date transferDate;
    std::uint32_t numofRecord = 0; ///< how many new readings it brought
    DayNumber transferDay = noDay;

    static DataTransferLogModel initWithXMLNode(pugi::xml_node element, const LocalZone& zone);
    /// A new, empty DataTransferLog element as \p root's last child.
    static pugi::xml_node makeXmlNode(pugi::xml_node root);
    /// Sets the text of each existing child whose name is known; adds none.
    void updateXMLNode(pugi::xml_node element) const;
};

} // namespace zel

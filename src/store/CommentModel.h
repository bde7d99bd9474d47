#pragma once

#include "store/Dates.h"

#include <QString>

#include <pugixml.hpp>

#include <cstdint>

namespace zel {

/// A note that the user attaches to a period of a patient's readings.
struct CommentModel {
    QString ID;               ///< the owning patient's
    QString CommentID;        ///< finds the comment in the file and keeps the selection over a reload
    std::uint32_t degree = 0; ///< colour class, an index into the comment colours
    Date beginDate;
    Date endDate;
    QString comment;
    bool isSelected = false;
    DayNumber beginDay = noDay; ///< local days of the two dates
    DayNumber endDay = noDay;

    [[nodiscard]] QString strBeginDate() const { return dayText(beginDay); } ///< "yyyy/MM/dd"
    [[nodiscard]] QString strEndDate() const { return dayText(endDay); }

    static CommentModel initWithXMLNode(pugi::xml_node element, const LocalZone& zone);
    /// A new, empty Comment element as \p root's last child.
    static pugi::xml_node makeXmlNode(pugi::xml_node root);
    /// Completes an element that was copied from another record's with what a new one is made with.
    static void addMissingXmlChildren(pugi::xml_node element);
    /// Sets the text of each existing child whose name is known; adds none.
    void updateXMLNode(pugi::xml_node element) const;
};

} // namespace zel

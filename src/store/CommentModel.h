#pragma once

#include "store/Dates.h"

#include <QString>

#include <pugixml.hpp>

#include <cstdint>
#include <optional>

namespace zel {

/// A note that the user attaches to a period of a patient's readings.
struct CommentModel {
    QString ID;        ///< the owning patient's
    QString CommentID; ///< no other comment's of the patient
    /// In the file, where that is another one: missing, or also another comment's of the patient.
    std::optional<QString> fileNumber;
    std::uint32_t degree = 0; ///< colour class, an index into the comment colours
    Date beginDate;           ///< the day in the file's text, whatever the time zone
    Date endDate;
    QString comment;
    bool isSelected = false;
    DayNumber beginDay = noDay; ///< local days of the two dates
    DayNumber endDay = noDay;

    /// With the patient's ID, finds the comment in the file; may be empty.
    [[nodiscard]] const QString& numberInFile() const { return fileNumber ? *fileNumber : CommentID; }
    [[nodiscard]] QString strBeginDate() const { return dayText(beginDay); } ///< "yyyy/MM/dd"
    [[nodiscard]] QString strEndDate() const { return dayText(endDay); }

    static CommentModel initWithXMLNode(pugi::xml_node element, const LocalZone& zone);
    /// A new, empty Comment element as \p root's last child.
    static pugi::xml_node makeXmlNode(pugi::xml_node root);
    /// Sets the text of each existing child whose name is known; adds none. Fields that are as in \p before
    /// keep the element's text.
    void updateXMLNode(pugi::xml_node element, const CommentModel* before = nullptr) const;
    /// Equal in all that the file holds.
    [[nodiscard]] bool isSame(const CommentModel& other) const;
};

} // namespace zel

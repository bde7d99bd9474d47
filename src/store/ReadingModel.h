#pragma once

#include "store/Dates.h"
#include "store/RecordNumber.h"
#include "store/SettingModel.h"

#include <QString>

#include <pugixml.hpp>

#include <array>
#include <cstdint>

namespace zel {

struct CommentModel;

/// One blood-pressure measurement of one patient, or (isNA) a placeholder row for a day without any.
/// Texts for display are made when they are shown, so that a reading stays small.
struct ReadingModel {
    const CommentModel* comment = nullptr; ///< the comment that covers it; not owned
    QString ID;                            ///< the owning patient's
    RecordNumber RecID;                    ///< decimal, unique in the document
    Date ReadingDate;                      ///< getNilReadingDate() when the monitor gave none
    std::uint32_t mam = 0;                 ///< 1: an average of several measurements
    std::uint32_t Arrhythmia = 0;          ///< 0 none; 1/2 PAD-capable no/yes; 4/5 AFib-capable no/yes
    std::uint32_t sys = 0;                 ///< systolic, mmHg
    std::uint32_t dia = 0;                 ///< diastolic, mmHg
    std::uint32_t map = 0;                 ///< mean arterial pressure, mmHg
    std::uint32_t pp = 0;                  ///< pulse pressure, mmHg
    std::uint32_t pulse = 0;               ///< beats per minute
    std::uint32_t erorr = 0;               ///< error code; spelled so in the file format
    QString exclusion;                     ///< why it counts nowhere, may be empty; null: it counts
    DayNumber day = noDay;                 ///< local day of ReadingDate, set by postInit
    std::uint16_t minuteOfDay = 0;         ///< local, 0 to 1439, set by postInit
    std::int16_t utcOffset = noOffset;     ///< minutes, as ReadingDate was stored
    bool bAtBegin = false;                 ///< first and last row of a comment's run of rows
    bool bAtEnd = false;
    bool bDrawTopLine = false;      ///< opens a new displayed day
    bool bYellowBackground = false; ///< on a day on which a download took place
    bool isPMData = false;          ///< hours 12 to 23
    bool isNA = false;
    bool isManual = false; ///< typed in by the user, not downloaded
    /// Stored with another offset than the computer's zone has at that moment: its day and its hour are not
    /// those that the monitor showed. Set by postInit.
    bool isOfOtherZone = false;
    static constexpr std::int16_t noOffset = INT16_MIN;

    static ReadingModel initNA(Instant date);
    static ReadingModel initWithXMLNode(pugi::xml_node element);
    /// A new, empty MeasureRec element as \p root's last child. It has a child Error where reading and
    /// updating use Erorr; both are given so by the file format.
    static pugi::xml_node makeXmlNode(pugi::xml_node root);
    /// Sets the text of each existing child whose name is known; adds none.
    void updateXMLNode(pugi::xml_node element) const;
    /// Writes what differs from \p before, in children of its own where they are missing, and removes those
    /// of what it has no longer; the others keep their text.
    void changeXMLNode(pugi::xml_node element, const ReadingModel& before) const;

    /// Equal in date and every measured value; ID, RecID and display state are not compared. No date and the
    /// file's text for none are one.
    [[nodiscard]] bool isSame(const ReadingModel& other) const;
    /// Every measured value.
    using Values = std::array<std::uint32_t, 7>;
    [[nodiscard]] Values values() const;
    /// Without a usable date: none, the monitor's marker, or year 1, which the file writes for none.
    [[nodiscard]] bool isUndated() const { return isUndatedDay(day); }
    /// It is left out, by the user or since the monitor measured it, too: it stays in the file and in the
    /// list, and counts nowhere.
    [[nodiscard]] bool isExcluded() const { return !exclusion.isNull(); }
    [[nodiscard]] bool isPad() const;
    [[nodiscard]] bool isAFib() const;
    [[nodiscard]] QString getPadStr() const;     ///< "Yes", "No" or "N/A", as in exported files
    [[nodiscard]] QString getMamStr() const;     ///< "Yes" or "No", as in exported files
    [[nodiscard]] QString strDisplayPad() const; ///< as getPadStr(), in words to be shown
    [[nodiscard]] QString strDisplayMam() const;

    /// The reading's line in an exported CSV file, with its end; date and time are empty when undated. Behind
    /// the last comma stands "manual" or "excluded: ..." with the reason, where it is.
    [[nodiscard]] QString exportCSV(const SettingModel& settings) const;

    /// Places the reading in its local day and after the reading listed before it (or none).
    void postInit(const ReadingModel* previous, const SettingModel& settings, const LocalZone& zone);

    [[nodiscard]] QString strDate() const { return dayText(day); } ///< "yyyy/MM/dd"
    /// Date in the user's format; "n.a" when undated.
    [[nodiscard]] QString strDisplayDate(const SettingModel& settings) const;
    /// "hh:mm A", "hh:mm P" or "HH:mm"; "--:--" when undated.
    [[nodiscard]] QString strDisplayTime(const SettingModel& settings) const;
};

} // namespace zel

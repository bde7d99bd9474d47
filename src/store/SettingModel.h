#pragma once

#include <QString>

#include <pugixml.hpp>

#include <cstdint>

namespace zel {

/// The one block of system settings, the SystemSetting element of the data file.
struct SettingModel {
    QString dateFormat;                     ///< "dd mm yyyy", "mm dd yyyy" or "yyyy mm dd"
    QString timeFormat;                     ///< "12-hours"; anything else is 24 hours
    QString metricFormat;                   ///< "kg / cm"; anything else is pounds, feet and inches
    std::uint32_t eraseRecAfterReading = 0; ///< 1: the monitor is emptied after a stored download
    std::uint32_t showPPorMap = 0;          ///< 0: pulse pressure; else mean arterial pressure
    std::uint32_t userWhoStandard = 0;      ///< state of the WHO box; nothing else reads it
    std::uint32_t sysStandard = 0;          ///< systolic limit, mmHg
    std::uint32_t diaStandard = 0;          ///< diastolic limit, mmHg
    QString physicianAddress;               ///< practitioner lines of the printed report

    bool operator==(const SettingModel&) const = default;

    static SettingModel initWithDefault();
    static SettingModel initWithXMLNode(pugi::xml_node element);
    /// A new SystemSetting element with the file format's defaults, as \p root's last child. Its unit system
    /// is "lb / in" where initWithDefault's is "kg / cm"; both are given so.
    static pugi::xml_node makeXmlNode(pugi::xml_node root);
    /// Sets the text of each existing child whose name is known; adds none. Fields that are as in \p before
    /// keep the element's text.
    void updateXMLNode(pugi::xml_node element, const SettingModel* before = nullptr) const;

    /// Takes over what \p wanted has other than \p shown.
    void takeChanges(const SettingModel& shown, const SettingModel& wanted);

    /// Unicode date pattern of dateFormat, or a null text for a value that is none.
    [[nodiscard]] QString getDateFormat() const;
    /// The same for what has to be said all the same: year, month and day for a value that is none.
    [[nodiscard]] QString shownDateFormat() const;
    /// "19:30", or "07:30" with the words for morning or evening. \p minuteOfDay: 0 to 1439
    [[nodiscard]] QString timeText(int minuteOfDay) const;
    /// The practitioner's lines without those that a new data file suggests: what is nobody's own.
    [[nodiscard]] QString getPractitioner() const;
    [[nodiscard]] bool isMetric() const;
    [[nodiscard]] bool is12Hours() const;
};

} // namespace zel

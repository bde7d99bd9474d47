#pragma once

#include "store/Dates.h"
#include "store/SettingModel.h"

#include <QString>

#include <pugixml.hpp>

#include <cstdint>

namespace zel {

/// One patient of the roster. A text that the file does not hold is null, which is not the empty text.
struct PatientModel {
    QString DisplayName; ///< family name, comma, given names; not stored
    QString ID;          ///< unique in the roster; links readings, comments and downloads
    QString FamilyName;
    QString GivenNames;
    QString Address;
    QString PhoneEmail;
    Date DateOfBirth;     ///< the day in the file's text, whatever the time zone; getNilDate() when unknown
    float Weight = 0;     ///< kg; 0 when not given
    float Height = 0;     ///< cm; 0 when not given
    std::int32_t Sex = 0; ///< 1 male, else female
    std::int32_t Smoker = 0;   ///< 1 yes, else no
    std::int32_t Diabetic = 0; ///< 1 yes, else no
    float Cholestrol = 0;      ///< mg/dL; 0 when not given; spelled so in the file format
    QString FamilyHistory;
    QString PatientNotes;

    bool operator==(const PatientModel&) const = default;

    static PatientModel initWithXMLNode(pugi::xml_node element);
    /// A new, empty Patient element as \p root's last child.
    static pugi::xml_node makeXmlNode(pugi::xml_node root);
    /// Sets the text of each existing child whose name is known; the ID only with \p copyPrimary. Fields that
    /// are as in \p before keep the element's text.
    void updateXMLNode(pugi::xml_node element, bool copyPrimary, const PatientModel* before = nullptr) const;
    void makeUpDisplayName();

    // Measures as the user reads and types them, in the unit system of the settings; empty for 0.
    [[nodiscard]] QString getWeightStr(const SettingModel& settings) const; ///< kg or lb, one decimal
    /// cm with one decimal, or feet/inches as in 5/9, whole inches not rounded up.
    [[nodiscard]] QString getHeightStr(const SettingModel& settings) const;
    [[nodiscard]] QString getCholestrolStr() const; ///< mg/dL, one decimal
    void convertAndSetWeight(const QString& text, const SettingModel& settings);
    /// \return false, changing nothing, for an imperial height without its "/"
    bool convertAndSetHeight(const QString& text, const SettingModel& settings);

    /// The patient's fourteen lines in an exported CSV file, each with its end. What is not given is empty.
    [[nodiscard]] QString exportCSV(const SettingModel& settings) const;

    /// Equal in everything but Weight, Height and Cholestrol, which the editor compares as their texts. Two
    /// texts that are both absent count as different, one absent as equal; the rule is given so.
    [[nodiscard]] bool isTheSanme(const PatientModel& other) const; // spelled so in the interface
};

/// "Yes" for 1, else "No", as in exported files.
[[nodiscard]] QString toYesNo(std::int32_t value);
/// Every double quote doubled, as in exported files.
[[nodiscard]] QString toDoubleQuote(const QString& text);
/// For two texts: absent both true, absent one false, else whether they differ.
[[nodiscard]] bool StrModified(const QString& a, const QString& b);
/// For two dates: absent both true, absent one false, else whether they are a day or more apart.
[[nodiscard]] bool DateModified(const Date& a, const Date& b);

} // namespace zel

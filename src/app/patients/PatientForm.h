#pragma once

#include "app/patients/PatientEntry.h"
#include "store/PatientModel.h"
#include "store/SettingModel.h"

#include <array>
#include <vector>

namespace zel {

/// Why an entry is not saved, at one of its fields.
struct PatientProblem {
    enum class Kind { missing, sameID, refused };
    PatientField field;
    Kind kind;
    QString text; ///< for the user
    bool operator==(const PatientProblem&) const = default;
};

/// The rules between a patient's record and the editor's fields. What the user leaves alone keeps the
/// record's value to the last digit, whatever the field shows of it, and is not judged.
class PatientForm {
public:
    /// What nobody is saved without.
    static constexpr std::array required{PatientField::FamilyName, PatientField::GivenNames,
                                         PatientField::ID};

    /// \p isNew: the record is no patient of the roster yet.
    PatientForm(PatientModel record, SettingModel unitSettings, bool isNew);
    /// A new record, as the editor begins with it.
    static PatientModel newPatient();

    [[nodiscard]] PatientEntry entryOf() const; ///< the record as the fields show it
    /// The fields' own form of entryOf(), which line ends, for one, may tell apart.
    void setShown(const PatientEntry& entry) { shown = entry; }
    [[nodiscard]] const PatientEntry& shownEntry() const { return shown; }

    /// Why the field's entry cannot be what it should be, in words; empty if it can. The date of birth is
    /// judged at its year.
    [[nodiscard]] QString refusal(PatientField field, const PatientEntry& entry, Instant today) const;
    /// All that stands against saving, but for an ID that is taken.
    [[nodiscard]] std::vector<PatientProblem> problems(const PatientEntry& entry, Instant today) const;
    /// The record with all fields whose entries are as they should be.
    [[nodiscard]] PatientModel record(const PatientEntry& entry) const;
    /// The user has changed something that leaving would lose.
    [[nodiscard]] bool isChanged(const PatientEntry& entry, Instant today) const;
    /// The entry as it stands under other settings; measures that were typed keep their unit, written out.
    [[nodiscard]] PatientEntry inUnitsOf(const SettingModel& other, PatientEntry entry) const;

    /// The day that the three fields name; none if they name none.
    [[nodiscard]] static Date birthDate(const PatientEntry& entry);

    [[nodiscard]] bool isNew() const { return isUnsaved; }
    [[nodiscard]] const SettingModel& units() const { return settings; }
    [[nodiscard]] const PatientModel& patient() const { return stored; }

private:
    [[nodiscard]] bool isEdited(PatientField field, const PatientEntry& entry) const;
    [[nodiscard]] bool isBirthEdited(const PatientEntry& entry) const;
    void setTexts(PatientModel& patient, const PatientEntry& entry) const;
    void setMeasures(PatientModel& patient, const PatientEntry& entry) const;

    PatientModel stored;
    SettingModel settings;
    bool isUnsaved;
    PatientEntry shown;
};

} // namespace zel

#pragma once

#include <QString>

#include <array>
#include <cstddef>

namespace zel {

/// What the editor has a field for, in the order in which one fills them in. A date of birth takes three.
enum class PatientField {
    FamilyName,
    GivenNames,
    ID,
    Sex,
    BirthYear,
    BirthMonth,
    BirthDay,
    Weight,
    Height,
    Address,
    PhoneEmail,
    Smoker,
    Diabetic,
    Cholestrol,
    FamilyHistory,
    PatientNotes,
};
inline constexpr std::size_t patientFieldTotal = 16;

/// A patient as it stands in the editor: one text for each field. A field with a list holds the position that
/// is chosen there, as a number.
class PatientEntry {
public:
    QString& operator[](PatientField field) { return texts.at(static_cast<std::size_t>(field)); }
    const QString& operator[](PatientField field) const { return texts.at(static_cast<std::size_t>(field)); }
    bool operator==(const PatientEntry&) const = default;

private:
    std::array<QString, patientFieldTotal> texts;
};

template <class Visitor>
void forEachPatientField(const Visitor& visit) {
    for (std::size_t i = 0; i < patientFieldTotal; ++i)
        visit(static_cast<PatientField>(i));
}

/// \p typed where it differs from \p shown, else \p fresh: what the user typed over a record that has
/// changed.
[[nodiscard]] PatientEntry keepTyped(const PatientEntry& typed, const PatientEntry& shown,
                                     PatientEntry fresh);

} // namespace zel

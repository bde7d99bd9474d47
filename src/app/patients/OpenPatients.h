#pragma once

#include "app/patients/PatientForm.h"
#include "store/Clock.h"

#include <optional>

namespace zel {

class DataStore;
class PatientEditor;

/// Whose record can be in the editor: a patient of the file, one who has gone from it while something was
/// typed, or the new one, which is as it was left while another is in the editor.
class OpenPatients {
public:
    struct Unsaved {
        PatientForm form;
        PatientEntry entry;
    };
    /// All must outlive it.
    OpenPatients(const DataStore& dataStore, const PatientEditor& patientEditor, const Clock& wallClock)
        : store(dataStore), editor(patientEditor), clock(wallClock) {}

    [[nodiscard]] bool isThere(const QString& ID) const;
    [[nodiscard]] bool isNewOne(const QString& ID) const;
    /// Changed here, and no longer in the file: another program took it out, or the file cannot be read. What
    /// was typed stays, and saving adds the patient again.
    [[nodiscard]] bool isGone(const QString& ID) const;
    /// The record in the editor is of nobody any more, and nothing was typed, so that another one takes the
    /// place.
    [[nodiscard]] bool isShownGone() const;
    /// The current patient's record is changed.
    [[nodiscard]] bool isEdited() const;
    [[nodiscard]] PatientForm formOf(const QString& ID) const;

    [[nodiscard]] const std::optional<Unsaved>& newOne() const { return newPatient; }
    /// Something is typed for the new one, in the editor or before it was left.
    [[nodiscard]] bool isNewOneBegun() const;
    /// It was left with something typed.
    [[nodiscard]] bool isNewOneKept() const;
    void begin(Unsaved begun) { newPatient = std::move(begun); }
    void keepNewOne(); ///< as it is in the editor
    void dropNewOne() { newPatient.reset(); }

    [[nodiscard]] Instant today() const;

private:
    const DataStore& store;
    const PatientEditor& editor;
    const Clock& clock;
    std::optional<Unsaved> newPatient; ///< the one that is not saved yet, as it was left
};

} // namespace zel

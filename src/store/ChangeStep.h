#pragma once
// What a change did to the data file, so that it can be undone and done again.

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <vector>

namespace zel {

enum class StepKind {
    addPatient,
    editPatient,
    deletePatient,
    addComment,
    editComment,
    deleteComment,
    importPatients,
    excludeReadings,
    includeReadings,
    addReading,
    editReading,
    deleteReadings,
    changeSettings,
};

/// What the user did, and to whom.
struct StepName {
    StepKind kind = StepKind::changeSettings;
    QString subject;       ///< the patient's name, or that of the imported file; empty for the settings
    QString patientID;     ///< the patient's or the comment's patient's; the first of an imported file's
    QString commentID;     ///< as CommentModel::CommentID; null unless the step is about a comment
    std::size_t count = 0; ///< of the readings; 0 unless the step is about readings

    bool operator==(const StepName&) const = default;
};

/// In a few words that go on after "Undo", as in "delete patient Smith, Margaret".
[[nodiscard]] QString describe(const StepName& name);

/// One child of the data file's root, as XML in UTF-8 on one line.
struct ElementChange {
    QByteArray before;   ///< empty: it was added
    QByteArray after;    ///< empty: it was removed
    QByteArray previous; ///< the node before it, of one added or removed; empty: it stood first

    bool operator==(const ElementChange&) const = default;
};

/// A change of the data file, in the order in which it was made. Without changes, it is none.
struct ChangeStep {
    StepName name;
    std::vector<ElementChange> changes;

    bool operator==(const ChangeStep&) const = default;
};

/// The step that takes this one back.
[[nodiscard]] ChangeStep invert(const ChangeStep& step);

} // namespace zel

#pragma once
// The second place for copies of the data file: a stick, a share.

#include "store/BackupRules.h"
#include "store/Clock.h"
#include "store/StoreError.h"

#include <QString>

#include <tl/expected.hpp>

#include <optional>
#include <vector>

namespace zel {

/// Where this computer's copies of one data file go beside their usual folder. A value, for any thread.
struct SecondFolder {
    QString folder; ///< as the user named it
    QString mark;   ///< random: what tells this data file's copies from all others that go to the folder

    /// The copies' own folder in it. It is made when the folder is named and never again: where it is
    /// missing, so is the stick, and what lies in its place is another disk's.
    [[nodiscard]] QString copies() const;
    [[nodiscard]] bool isThere() const;
    [[nodiscard]] QString path(const QString& name) const { return copies() + u'/' + name; }
    /// Newest first; files of other names are not looked at.
    [[nodiscard]] std::vector<Backup> list() const;
};

enum class SecondFolderProblem {
    away,         ///< it is not there
    noRoom,       ///< the copies would take more than a tenth of its free disk
    failed,       ///< the copy could not be read or written; the detail says why
    notFlushed,   ///< it is there, but may be gone after a power cut
    notRecorded,  ///< which one it is could not be written down, also as another program is at it
    recordBroken, ///< nor read; there is none until one is named again
};
struct SecondFolderError {
    SecondFolderProblem problem;
    QString folder; ///< for the last two: the record's path
    QString detail; ///< may be empty
};
[[nodiscard]] QString describe(const SecondFolderError& error);
using SecondFolderResult = tl::expected<void, SecondFolderError>;

/// The one that was named for the data file on this computer. The record is a file beside the data file; that
/// of another computer or place, which came with a copied folder, names none.
[[nodiscard]] tl::expected<std::optional<SecondFolder>, SecondFolderError>
secondFolder(const QString& dataFile);
/// From now on copies go there; an empty \p folder ends that, and leaves those that are there.
[[nodiscard]] SecondFolderResult nameSecondFolder(const QString& dataFile, const QString& folder);

/// Copies the daily copy of \p day from \p backups, the usual folder, unless it is there already, when it is
/// flushed again, and removes daily copies that are kept no longer (superfluousBackups()); nothing if there
/// is none of that day.
[[nodiscard]] SecondFolderResult bringCopy(const QString& backups, const SecondFolder& to, DayNumber day);
/// Makes a copy that lies there one of the usual folder, from where it can be restored. \return its name
[[nodiscard]] tl::expected<QString, StoreError> fetchCopy(const QString& backups, const QString& path,
                                                          Instant now);

/// Whether a failure is still to be told on this day: once a day, whichever program asks.
[[nodiscard]] bool isFirstFailure(const QString& dataFile, DayNumber today);

} // namespace zel

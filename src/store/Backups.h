#pragma once

#include "store/BackupRules.h"
#include "store/DataFile.h"

namespace zel {

/// What a copy of the data file holds, for the user to choose by.
struct BackupContent {
    std::size_t patients = 0;
    std::size_t readings = 0;
    DayNumber lastReading = noDay; ///< noDay without a dated reading
};

/// As "2 patients, 60 readings, the last of 02/11/2026". \p dateFormat: as SettingModel::shownDateFormat()
[[nodiscard]] QString describe(const BackupContent& content, const QString& dateFormat);

/// A copy that could be read.
struct ReadBackup {
    Backup copy;
    BackupContent content;
};

/// Copies of the data file in the folder "Backups" beside it, for its owner alone.
class Backups {
public:
    /// Both must outlive it.
    Backups(const DataFile& dataFile, const Clock& wallClock) : file{dataFile}, clock{wallClock} {}

    [[nodiscard]] QString folder() const;
    /// Newest first; files of other names are not looked at.
    [[nodiscard]] std::vector<Backup> list() const;
    /// As for the data file itself; other errors when the copy cannot be read.
    [[nodiscard]] tl::expected<BackupContent, StoreError> content(const QString& name) const;
    /// The newest one that can be read and holds at least so many patients; none if there is none.
    [[nodiscard]] std::optional<ReadBackup> newest(std::size_t patients = 0) const;

    /// Removes what killed programs left in the folder.
    void removeDead() const;
    /// Copies the data file as it is, unless that was done today, and removes daily copies that are kept no
    /// longer. To be called before a change. noRoomForBackup, and nothing is removed, if the copy would fill
    /// more than a tenth of the disk that is free without the daily ones.
    [[nodiscard]] StoreResult keepDaily() const;
    /// Copies the data file as it is. \return the copy's name
    [[nodiscard]] tl::expected<QString, StoreError> create() const;
    /// Puts the copy in the data file's place, and keeps what was there as another one. Does not reload.
    /// What cannot be read, or is too large, gives its place and becomes that other one itself.
    /// \return the name of what was there; empty: there was nothing
    [[nodiscard]] tl::expected<QString, StoreError> restore(const QString& name) const;

private:
    [[nodiscard]] QString path(const QString& name) const;
    using Kept = tl::expected<QString, StoreError>; ///< the name that restore() returns
    [[nodiscard]] Kept replaceCopied(const QByteArray& content) const;
    [[nodiscard]] Kept replaceUnread(const QByteArray& content, const FileStamp& found) const;
    [[nodiscard]] StoreResult copyTo(const QString& name) const;
    [[nodiscard]] StoreResult makeFolder() const;
    [[nodiscard]] qint64 room() const;
    [[nodiscard]] Instant now() const;
    const DataFile& file;
    const Clock& clock;
};

} // namespace zel

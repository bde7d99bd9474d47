#pragma once
// Which copies of the data file there are by their names, and which of them are kept.

#include "store/Dates.h"

#include <QString>

#include <optional>
#include <vector>

namespace zel {

enum class BackupKind {
    daily,    ///< before the first change of a day: ZEL-2026-11-22.xml
    made,     ///< by the user: ZEL-2026-11-22-093015.xml
    replaced, ///< what a restored copy took the place of: ZEL-2026-11-22-093015-replaced.xml
    damaged,  ///< likewise, and it could not be read: ZEL-2026-11-22-093015-damaged.xml
};

/// A copy in the folder of backups, as its name tells.
struct Backup {
    QString name;
    BackupKind kind = BackupKind::daily;
    DayNumber day = noDay;
    qint64 size = 0; ///< bytes

    bool operator==(const Backup&) const = default;
};

/// The name of a copy that is made at \p now, in local time.
[[nodiscard]] QString backupName(BackupKind kind, Instant now);
/// None for a name that is no copy's.
[[nodiscard]] std::optional<Backup> backupOfName(const QString& name);

/// A day's own copy, from before its first change, counts as older than the others of that day.
void sortNewestFirst(std::vector<Backup>& copies);

/// The copies that are kept no longer: the last 14 days are, then the newest of each month for two years, and
/// of these only as many, the newest first, as a tenth of the disk holds that would be free without them. A
/// damaged file may be the only one with its readings, so it is left to the user. \param free bytes that are
/// free now
[[nodiscard]] std::vector<Backup> superfluousBackups(std::vector<Backup> copies, DayNumber today,
                                                     qint64 free);

} // namespace zel

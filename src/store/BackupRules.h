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

/// The daily copies that are kept no longer: those of the last 14 days are, then the newest of each month for
/// two years. Only days and months that have a copy count, so that a long pause, or a clock that is wrong,
/// removes nothing. All daily copies together fill at most \p room bytes; the newest one stays in any case.
/// The other kinds are the user's: nothing but the user removes them.
[[nodiscard]] std::vector<Backup> superfluousBackups(std::vector<Backup> copies, qint64 room);

} // namespace zel

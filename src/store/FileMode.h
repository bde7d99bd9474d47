#pragma once
// Who may read what the program makes.

#include <QString>

#include <sys/types.h>

namespace zel {

/// What a folder allows for the files in it beside their owner (0066 at most). A folder says so by a default
/// access list, or by passing its group on (setgid), which share it on purpose; that others may enter it is
/// merely usual, and allows nothing.
[[nodiscard]] mode_t sharedByFolder(const QString& folder);
/// The mode of a new file in the folder: 0600, and what the folder shares, less what the user withholds
/// (umask).
[[nodiscard]] mode_t newFileMode(const QString& folder);
/// Makes the folder and those above it that are missing, each for its owner alone (0700) from the beginning.
[[nodiscard]] bool makePrivateFolder(const QString& path);

} // namespace zel

#pragma once
// A file's second name, for what cannot be read and so not be copied.

#include <QString>

namespace zel {

/// Gives the file the name \p kept, too; where a file can have one name only, as on FAT, it gives up its own.
/// Only where nothing stands. \return the system's error number, 0 for success
[[nodiscard]] int keepAside(const QString& path, const QString& kept);

/// Takes keepAside() back, but for a file that another one has replaced since.
/// \return whether \p path is there again, or still
[[nodiscard]] bool giveBack(const QString& path, const QString& kept);

} // namespace zel

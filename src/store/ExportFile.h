#pragma once
// The files that patients are exported to: their names, and how they are written.

#include "store/StoreError.h"

#include <QByteArray>
#include <QString>

namespace zel {

/// The patient's ID and the extension (".xml", ".csv"). What cannot stand in a file name is percent-escaped,
/// and a name that is too long ends in a digest of the ID, so that every ID has a name of its own that stays
/// inside its folder. That of an invented patient says so: no form of file but one has a place for it inside.
[[nodiscard]] QString exportFileName(const QString& ID, const QString& extension, bool isDemonstration);
[[nodiscard]] QString exportPath(const QString& folder, const QString& ID, const QString& extension,
                                 bool isDemonstration);

/// Whether a file that is there already may be replaced.
enum class Replace { no, yes };

/// Writes the file whole or not at all. It is never the data file, and a link is replaced, not followed. A
/// new file is for its owner alone, unless its folder shares what is in it (newFileMode()). Before it
/// outlasts a power cut it takes a flushExports(), once for many files: flushing each would take most of the
/// time of an export. \return alreadyExists or isDataFile if it may not be replaced; see describeExport()
[[nodiscard]] StoreResult writeExport(const QString& path, const QByteArray& content, Replace replace,
                                      const QString& dataFile);

/// Waits until everything written to the folder is on the disk. Removes what a killed export left there.
[[nodiscard]] StoreResult flushExports(const QString& folder);

} // namespace zel

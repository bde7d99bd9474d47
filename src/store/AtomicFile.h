#pragma once

#include "store/StoreError.h"

#include <QByteArray>
#include <QString>

namespace zel {

/// Replaces the file's content whole or not at all: a temporary file beside it is written, flushed to the
/// disk and renamed over it, and the folder is flushed too, so that a power cut after success loses nothing.
/// What programs left beside it that were killed meanwhile is removed first. Symbolic links are followed,
/// permissions and owner kept; a new file is for its owner alone (0600), unless its folder shares what is in
/// it (newFileMode()). \return notFlushed if the file has been replaced, but may be the older one again after
/// a power cut; after any other error it is as it was
[[nodiscard]] StoreResult replaceFile(const QString& path, const QByteArray& content);

/// As replaceFile(), but only where nothing stands, also no link: alreadyExists.
[[nodiscard]] StoreResult makeFile(const QString& path, const QByteArray& content);

/// As replaceFile(), but the file that was there is not gone: it has the name \p kept then, without being
/// read. Nothing may stand there, and it has to be on the same disk. \return notCreated, with \p kept as its
/// detail, if neither took the place: \p kept is all there is then
[[nodiscard]] StoreResult replaceAndKeep(const QString& path, const QByteArray& content, const QString& kept);

/// Has a folder that was just made outlast a power cut. One whose parents may not be read is left to the
/// system.
[[nodiscard]] StoreResult flushNewFolder(const QString& folder);

/// Tries again to have a file outlast a power cut that was replaced, but not flushed then: notFlushed.
[[nodiscard]] StoreResult flushAgain(const QString& path);

/// Removes what programs left beside the file when they were killed while they replaced it.
void removeDeadReplacements(const QString& path);

/// The largest file that is read, in bytes.
inline constexpr qint64 largestFile = qint64{512} << 20;

/// The whole file. Only a regular file is opened: a pipe or a device has no end to wait for.
/// \return notReadable, readFailed or tooLarge
[[nodiscard]] tl::expected<QByteArray, StoreError> readFile(const QString& path);

/// What the system's error number of a failed write means to the user; writeFailed with the system's words if
/// it is none of a full disk, a quota and a size limit.
[[nodiscard]] StoreError writeError(int error, const QString& path);

} // namespace zel

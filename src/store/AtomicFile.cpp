#include "store/AtomicFile.h"

#include "store/Log.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace zel {

namespace {

tl::unexpected<StoreError> failed(StoreErrorCode code, const QString& path, const QString& detail) {
    return tl::unexpected{StoreError{code, path, detail}};
}

/// \return the system's error number, 0 for success
int flushFolder(const QString& folder) {
    const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return errno;
    const int error = ::fsync(handle) == 0 ? 0 : errno;
    ::close(handle);
    return error == EINVAL ? 0 : error; // a file system that has nothing to flush
}

/// True once every byte is in the temporary file. On a full disk commit() alone can report success for a
/// file that was cut short.
bool writeWhole(QSaveFile& file, const QByteArray& content) {
    return file.write(content) == content.size() && file.flush() && file.error() == QFileDevice::NoError
           && file.size() == content.size() && ::fsync(file.handle()) == 0;
}

} // namespace

StoreResult replaceFile(const QString& path, const QByteArray& content) {
    const QFileInfo info{path};
    // A device or a pipe would be gone for good.
    if (info.exists() && !info.isFile()) return failed(StoreErrorCode::notWritable, path, {});
    const QString target = info.isSymLink() && info.exists() ? info.canonicalFilePath() : path;
    QSaveFile file{target};
    file.setDirectWriteFallback(false);
    if (!file.open(QIODevice::WriteOnly))
        return failed(StoreErrorCode::notWritable, path, file.errorString());
    if (!info.exists()) file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    if (!writeWhole(file, content)) {
        file.cancelWriting();
        return failed(StoreErrorCode::writeFailed, path, {});
    }
    if (!file.commit()) return failed(StoreErrorCode::writeFailed, path, file.errorString());
    // The new content is in its place already; not being able to say when it is there for good is no failure.
    if (const int error = flushFolder(QFileInfo{target}.absolutePath())) {
        qCWarning(lcStore, "The folder of %s could not be flushed: %s", qUtf8Printable(target),
                  std::strerror(error));
    }
    return {};
}

tl::expected<QByteArray, StoreError> readFile(const QString& path) {
    QFile file{path};
    if (!file.open(QIODevice::ReadOnly)) return failed(StoreErrorCode::notReadable, path, file.errorString());
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return failed(StoreErrorCode::notReadable, path, file.errorString());
    return content;
}

} // namespace zel

#include "store/AtomicFile.h"

#include "store/KeptAside.h"
#include "store/Log.h"
#include "store/NewFile.h"
#include "store/Uninterrupted.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QString systemWords(int error) { return QString::fromLocal8Bit(std::strerror(error)); }

tl::unexpected<StoreError> failed(StoreErrorCode code, const QString& path, const QString& detail) {
    return tl::unexpected{StoreError{code, path, detail}};
}

tl::unexpected<StoreError> unwritten(int error, const QString& path) {
    return tl::unexpected{writeError(error, path)};
}

class Handle {
public:
    explicit Handle(int opened) : handle{opened} {}
    ~Handle() {
        if (handle >= 0) ::close(handle);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    [[nodiscard]] int get() const { return handle; }
    [[nodiscard]] bool isOpen() const { return handle >= 0; }

private:
    int handle;
};

/// What is there, held while another file takes its place: FAT frees nothing that is open. Else the blocks
/// may be free on the disk before the name leads to the other one's.
Handle hold(const QString& target) {
    return Handle{::open(QFile::encodeName(target).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)};
}

/// \return the system's error number, 0 for success
int flushFolder(const QString& folder, NewFile& file) {
    const Handle handle{::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    if (!handle.isOpen()) return file.flushFileSystem(); // it may be written, but not read
    if (uninterrupted([&] { return ::fsync(handle.get()); }) == 0) return 0;
    return errno == EINVAL ? 0 : errno; // a file system that has nothing to flush
}

QString realPath(const QString& path) {
    const QFileInfo info{path};
    return info.isSymLink() && info.exists() ? info.canonicalFilePath() : path;
}

/// Hidden, and unlike any name that a user gives to a copy of the file.
QString temporaryPrefix(const QString& target) {
    const QFileInfo info{target};
    return info.path() + u"/."_s + info.fileName() + u".new-"_s;
}

int keepOwner(NewFile& file, const QString& target) {
    struct stat before {};
    if (::stat(QFile::encodeName(target).constData(), &before) != 0)
        return errno == ENOENT ? file.followFolder() : errno;
    return file.setOwner(before.st_uid, before.st_gid, before.st_mode & 0777U);
}

int writeWhole(NewFile& file, const QString& target, const QByteArray& content) {
    if (const int error = keepOwner(file, target)) return error;
    if (const int error = file.write(content)) return error;
    // FAT's table, before a name leads into it.
    const int error = file.isOnFat() ? flushFolder(QFileInfo{target}.absolutePath(), file) : 0;
    return error != 0 ? error : file.flush();
}

/// Once the temporary name has gone, FAT leads the other one to the new blocks: never both to the same.
int flushPlace(NewFile& file, const QString& target) {
    const int error = flushFolder(QFileInfo{target}.absolutePath(), file);
    return error == 0 && file.isOnFat() ? file.flush() : error;
}

/// Puts the new file where it belongs. \return the system's error number, 0 for success
using Take = std::function<int(NewFile& file, const QString& place)>;

/// \p path as the user is told of it
StoreResult put(const QByteArray& content, const QString& path, const QString& target, const Take& take) {
    removeDeadFiles(temporaryPrefix(target));
    auto file = NewFile::create(temporaryPrefix(target));
    if (!file) return unwritten(file.error(), path);
    if (const int error = writeWhole(*file, target, content)) return unwritten(error, path);
    const Handle before = file->isOnFat() ? hold(target) : Handle{-1};
    if (const int error = take(*file, target)) return unwritten(error, path);
    if (const int error = flushPlace(*file, target)) {
        // Not its name: that of a report or an export tells whose it is.
        qCWarning(lcStore, "A folder could not be flushed: %s", std::strerror(error));
        return failed(StoreErrorCode::notFlushed, path, systemWords(error));
    }
    return {};
}

/// What disks and file systems say of content that is lost; the others of what is only out of reach.
StoreErrorCode readError(int error) {
    const bool isLost = error == EIO || error == EUCLEAN || error == EBADMSG || error == ENODATA;
    return isLost ? StoreErrorCode::readFailed : StoreErrorCode::notReadable;
}

/// \p path as the user is told of it
StoreResult flushEach(std::initializer_list<QString> places, const QString& path) {
    for (const QString& each : places) {
        const Handle handle{::open(QFile::encodeName(each).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)};
        const bool isFlushed =
            !handle.isOpen() || uninterrupted([&] { return ::fsync(handle.get()); }) == 0 || errno == EINVAL;
        if (!isFlushed) return failed(StoreErrorCode::notFlushed, path, systemWords(errno));
    }
    return {};
}

} // namespace

StoreError writeError(int error, const QString& path) {
    switch (error) {
    case EEXIST: return {StoreErrorCode::alreadyExists, path, {}};
    case ENOSPC: return {StoreErrorCode::diskFull, path, {}};
    case EDQUOT: return {StoreErrorCode::quotaReached, path, {}};
    case EFBIG: return {StoreErrorCode::sizeLimit, path, {}};
    case EACCES:
    case EPERM:
    case ENOENT:
    case ENOTDIR:
    case EROFS: return {StoreErrorCode::notWritable, path, systemWords(error)};
    default: return {StoreErrorCode::writeFailed, path, systemWords(error)};
    }
}

StoreResult replaceFile(const QString& path, const QByteArray& content) {
    const QFileInfo info{path};
    // A device or a pipe would be gone for good.
    if (info.exists() && !info.isFile()) return failed(StoreErrorCode::notWritable, path, {});
    return put(content, path, realPath(path), &NewFile::takePlace);
}

StoreResult makeFile(const QString& path, const QByteArray& content) {
    return put(content, path, path, &NewFile::takeFreePlace);
}

StoreResult replaceAndKeep(const QString& path, const QByteArray& content, const QString& kept) {
    bool isGivenBack = true;
    const auto take = [&](NewFile& file, const QString& place) {
        int error = keepAside(place, kept);
        if (error != 0) return error;
        error = flushFolder(QFileInfo{kept}.absolutePath(), file);
        if (error == 0) error = file.takePlace(place);
        if (error != 0) isGivenBack = giveBack(place, kept);
        return error;
    };
    StoreResult replaced = put(content, path, realPath(path), take);
    return isGivenBack ? replaced : failed(StoreErrorCode::notCreated, path, kept);
}

StoreResult flushNewFolder(const QString& folder) {
    const QString parent = QFileInfo{folder}.absolutePath();
    // Flushing any other folder writes FAT's table, before the name leads into it.
    return flushEach({QFileInfo{parent}.absolutePath(), parent}, folder);
}

StoreResult flushAgain(const QString& path) {
    return flushEach({path, QFileInfo{path}.absolutePath()}, path);
}

void removeDeadReplacements(const QString& path) { removeDeadFiles(temporaryPrefix(realPath(path))); }

tl::expected<QByteArray, StoreError> readFile(const QString& path) {
    // Opening a pipe would wait for who writes into it.
    const Handle handle{::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)};
    if (!handle.isOpen()) return failed(StoreErrorCode::notReadable, path, systemWords(errno));
    struct stat status {};
    if (::fstat(handle.get(), &status) != 0)
        return failed(StoreErrorCode::notReadable, path, systemWords(errno));
    if (!S_ISREG(status.st_mode)) return failed(StoreErrorCode::notReadable, path, qtTrId("ImportNoFile"));
    // Some files do not know their size, and a file may grow meanwhile.
    constexpr qint64 step = qint64{1} << 20;
    QByteArray content;
    content.reserve(std::min<qint64>(status.st_size, largestFile) + step);
    for (ssize_t count = 1; count > 0;) {
        const qsizetype done = content.size();
        if (std::max<qint64>(status.st_size, done) > largestFile)
            return failed(StoreErrorCode::tooLarge, path, {});
        content.resize(std::max<qint64>(status.st_size, done) + step);
        count = uninterrupted([&] {
            return ::read(handle.get(), content.data() + done,
                          static_cast<std::size_t>(content.size() - done));
        });
        if (count < 0) return failed(readError(errno), path, systemWords(errno));
        content.resize(done + count);
    }
    return content;
}

} // namespace zel

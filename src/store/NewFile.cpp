#include "store/NewFile.h"

#include "store/FileMode.h"
#include "store/Log.h"
#include "store/Uninterrupted.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

namespace zel {

namespace {

constexpr qsizetype randomLength = 6; // of mkostemp()'s names

int errorOf(int result) { return result == 0 ? 0 : errno; }

/// The name goes from the disk before the blocks are freed, which FAT does when the file is closed: a power
/// cut must not leave one that leads to free blocks.
int removeOpen(const QByteArray& path) {
    if (::unlink(path.constData()) != 0) return errno;
    const QByteArray folder = QFile::encodeName(QFileInfo{QFile::decodeName(path)}.path());
    const int handle = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return 0;
    ::fsync(handle);
    ::close(handle);
    return 0;
}

/// A removal of dead files may have taken it for one before it was locked.
bool isLockedAndThere(int handle) {
    if (::flock(handle, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return false;
    struct stat status {};
    return ::fstat(handle, &status) == 0 && status.st_nlink > 0;
}

void removeIfDead(const QByteArray& path) {
    // To be written to, without which a share gives nobody the lock.
    const int handle = ::open(path.constData(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (handle < 0) return;
    struct stat status {};
    const bool isDead =
        ::fstat(handle, &status) == 0 && S_ISREG(status.st_mode) && ::flock(handle, LOCK_EX | LOCK_NB) == 0;
    if (isDead && removeOpen(path) == 0) {
        qCInfo(lcStore, "Removed what a program left that was ended while writing");
        qCDebug(lcStore, "It was %s", path.constData());
    }
    ::close(handle);
}

} // namespace

tl::expected<NewFile, int> NewFile::create(const QString& prefix) {
    // Beyond a size limit, writing then fails with an error to be told, and the program lives on.
    std::signal(SIGXFSZ, SIG_IGN);
    for (;;) {
        QByteArray name = QFile::encodeName(prefix) + QByteArray(randomLength, 'X');
        const int handle = ::mkostemp(name.data(), O_CLOEXEC);
        if (handle < 0) return tl::unexpected{errno};
        if (isLockedAndThere(handle)) return NewFile{handle, std::move(name)};
        ::close(handle);
    }
}

NewFile::NewFile(NewFile&& other) noexcept
    : handle{std::exchange(other.handle, -1)}, name{std::exchange(other.name, {})} {}

NewFile::~NewFile() {
    if (!name.isEmpty()) removeOpen(name);
    if (handle >= 0) ::close(handle);
}

int NewFile::write(const QByteArray& content) {
    for (qsizetype done = 0; done < content.size();) {
        const ssize_t count = uninterrupted([&] {
            return ::write(handle, content.constData() + done,
                           static_cast<std::size_t>(content.size() - done));
        });
        if (count < 0) return errno;
        done += count;
    }
    return 0;
}

int NewFile::setOwner(uid_t owner, gid_t group, mode_t mode) {
    struct stat own {};
    if (::fstat(handle, &own) != 0) return errno;
    const bool isOther = own.st_uid != owner || own.st_gid != group;
    if (isOther && ::fchown(handle, owner, group) != 0) {
        // Only the superuser gives files away. Another group's members must not come to read it.
        if (own.st_gid != group && ::fchown(handle, static_cast<uid_t>(-1), group) != 0)
            mode &= ~static_cast<mode_t>(S_IRWXG);
    }
    return setMode(mode);
}

/// File systems without permissions refuse to set them.
int NewFile::setMode(mode_t mode) {
    const int error = errorOf(::fchmod(handle, mode));
    return error == EPERM || error == ENOTSUP ? 0 : error;
}

int NewFile::followFolder() {
    const mode_t mode = newFileMode(QFileInfo{QFile::decodeName(name)}.path());
    return mode == 0600U ? 0 : setMode(mode);
}

int NewFile::flush() {
    return errorOf(uninterrupted([this] { return ::fsync(handle); }));
}

bool NewFile::isOnFat() const {
    struct statfs system {};
    return ::fstatfs(handle, &system) == 0
           && (system.f_type == MSDOS_SUPER_MAGIC || system.f_type == EXFAT_SUPER_MAGIC);
}

int NewFile::flushFileSystem() {
    return errorOf(uninterrupted([this] { return ::syncfs(handle); }));
}

int NewFile::takePlace(const QString& path) {
    const int error = errorOf(std::rename(name.constData(), QFile::encodeName(path).constData()));
    if (error == 0) name.clear();
    return error;
}

int NewFile::takeFreePlace(const QString& path) {
    const QByteArray place = QFile::encodeName(path);
    const int error =
        errorOf(::renameat2(AT_FDCWD, name.constData(), AT_FDCWD, place.constData(), RENAME_NOREPLACE));
    // A file system that knows no such renaming, as NFS; the second name goes with this object.
    if (error == EINVAL || error == ENOSYS) return errorOf(::link(name.constData(), place.constData()));
    if (error == 0) name.clear();
    return error;
}

void removeDeadFiles(const QString& prefix) {
    const QFileInfo pattern{prefix};
    const QString begin = pattern.fileName();
    const QDir folder{pattern.path()};
    for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden | QDir::NoSymLinks)) {
        if (name.startsWith(begin) && name.size() == begin.size() + randomLength)
            removeIfDead(QFile::encodeName(folder.filePath(name)));
    }
}

} // namespace zel

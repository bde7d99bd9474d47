#include "store/FileLock.h"

#include "store/SharedFolder.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zel {

namespace {

bool isRegular(int handle) {
    struct stat status {};
    errno = 0;
    return ::fstat(handle, &status) == 0 && S_ISREG(status.st_mode);
}

bool isFound(const QByteArray& name, struct stat& file) {
    lookAnewBeside(name);
    const int opened = ::open(name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (opened < 0) return errno != ENOENT && errno != ESTALE && ::lstat(name.constData(), &file) == 0;
    const bool isKnown = ::fstat(opened, &file) == 0;
    ::close(opened);
    return isKnown;
}

} // namespace

FileLock::FileLock(const QString& file) : filePath{file}, lockPath{file + QStringLiteral(".lock")} {}

FileLock::~FileLock() {
    if (handle >= 0 && isInPlace()) ::unlink(QFile::encodeName(lockPath).constData());
    close();
}

void FileLock::close() {
    if (handle >= 0) ::close(handle);
    handle = -1;
}

/// The one before may have removed the file that this one has opened, and a third made a new one.
bool FileLock::isInPlace() const {
    struct stat own {};
    struct stat there {};
    return ::fstat(handle, &own) == 0 && own.st_nlink > 0 && isFound(QFile::encodeName(lockPath), there)
           && own.st_dev == there.st_dev && own.st_ino == there.st_ino;
}

/// \return the handle, or -1
int FileLock::open() const {
    const QByteArray name = QFile::encodeName(lockPath);
    constexpr int flags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    struct stat file {};
    const bool isThere = ::stat(QFile::encodeName(filePath).constData(), &file) == 0;
    const mode_t mode = isThere ? (file.st_mode & 0666U) | 0600U : 0600U;
    const int opened = ::open(name.constData(), O_RDWR | O_CREAT | flags, mode);
    return opened < 0 && errno == EACCES ? ::open(name.constData(), O_RDONLY | flags) : opened;
}

/// Who may change the file may lock it, also while the superuser or another of its group does.
void FileLock::share() const {
    struct stat file {};
    if (::stat(QFile::encodeName(filePath).constData(), &file) != 0) return;
    [[maybe_unused]] int result = ::fchown(handle, ::geteuid() == 0 ? file.st_uid : uid_t(-1), file.st_gid);
    if (result == 0) result = ::fchmod(handle, (file.st_mode & 0666U) | 0600U);
}

FileLock::Attempt FileLock::tryTake() {
    const QByteArray name = QFile::encodeName(lockPath);
    for (;;) {
        lookAnewBeside(name);
        ::rmdir(name.constData()); // an empty folder is nobody's lock
        handle = open();
        if (handle < 0) {
            systemError = errno;
            return systemError == EISDIR || systemError == ELOOP || systemError == ENXIO ? Attempt::blocked
                                                                                         : Attempt::failed;
        }
        if (!isRegular(handle)) {
            const bool isGone = errno == ESTALE; // another machine has removed it
            return close(), isGone ? Attempt::held : Attempt::blocked;
        }
        if (::flock(handle, LOCK_EX | LOCK_NB) != 0) {
            systemError = errno;
            return close(), systemError == EWOULDBLOCK ? Attempt::held : Attempt::failed;
        }
        if (isInPlace()) return share(), Attempt::taken;
        close();
    }
}

} // namespace zel

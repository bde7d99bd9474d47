#include "store/KeptAside.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zel {

namespace {

int renameToFree(const QByteArray& from, const QByteArray& to) {
    const int result = ::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE);
    return result == 0 ? 0 : errno;
}

bool isSameFile(const QByteArray& one, const QByteArray& other) {
    struct stat first {
    }, second{};
    return ::lstat(one.constData(), &first) == 0 && ::lstat(other.constData(), &second) == 0
           && first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

} // namespace

/// A second name first: then there is no moment without a data file, which would be made anew, and empty.
int keepAside(const QString& path, const QString& kept) {
    const QByteArray own = QFile::encodeName(path);
    const QByteArray other = QFile::encodeName(kept);
    if (::link(own.constData(), other.constData()) == 0) return 0;
    const bool hasOneName = errno == EPERM || errno == ENOTSUP || errno == ENOSYS || errno == EMLINK;
    return hasOneName ? renameToFree(own, other) : errno;
}

bool giveBack(const QString& path, const QString& kept) {
    const QByteArray own = QFile::encodeName(path);
    const QByteArray other = QFile::encodeName(kept);
    if (isSameFile(own, other)) {
        ::unlink(other.constData()); // if it stays, it is a name too many, and no harm
        return true;
    }
    return renameToFree(other, own) == 0 || ::access(own.constData(), F_OK) == 0;
}

} // namespace zel

#pragma once

#include <QFile>
#include <QString>

#include <atomic>
#include <cerrno>
#include <sys/stat.h>

namespace zel {

/// While it lives, the disk gives nothing of a file, whatever its name is by then. For a test that has read()
/// replaced by its own, which asks failsFor().
class BrokenFile {
public:
    explicit BrokenFile(const QString& path) {
        struct stat status {};
        if (::stat(QFile::encodeName(path).constData(), &status) == 0) number = status.st_ino;
    }
    ~BrokenFile() { number = 0; }
    BrokenFile(const BrokenFile&) = delete;
    BrokenFile& operator=(const BrokenFile&) = delete;

    /// Sets errno if so.
    [[nodiscard]] static bool failsFor(int handle) {
        struct stat status {};
        if (number == 0 || ::fstat(handle, &status) != 0 || status.st_ino != number) return false;
        errno = EIO;
        return true;
    }

private:
    inline static std::atomic<ino_t> number = 0;
};

} // namespace zel

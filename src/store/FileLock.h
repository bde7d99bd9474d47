#pragma once

#include <QString>

namespace zel {

/// The turn of one program among those that change a file: a lock of the system's on a file beside it, which
/// ends with the program that holds it, however that ends, and never before. What it may have left behind
/// holds nobody up.
class FileLock {
public:
    /// \p file: what is really changed, links followed.
    explicit FileLock(const QString& file);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    enum class Attempt {
        taken,
        held,    ///< by another program
        blocked, ///< by a folder or another thing in the lock's place
        failed,  ///< see error()
    };
    [[nodiscard]] Attempt tryTake();
    [[nodiscard]] const QString& path() const { return lockPath; }
    [[nodiscard]] int error() const { return systemError; }

private:
    [[nodiscard]] bool isInPlace() const;
    void close();
    [[nodiscard]] int open() const;
    void share() const;
    QString filePath;
    QString lockPath;
    int handle = -1;
    int systemError = 0;
};

} // namespace zel

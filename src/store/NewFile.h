#pragma once
// Files that take their place only when they are whole.

#include <QByteArray>
#include <QString>

#include <tl/expected.hpp>

#include <sys/types.h>

namespace zel {

/// A file that is written under a temporary name and then takes its place by a rename. It is removed if it
/// never does. Errors are the system's numbers, 0 for success. While it is open it is locked, so that
/// removeDeadFiles() tells it from what a killed program left.
class NewFile {
public:
    /// \p prefix: path and beginning of the temporary name. For its owner alone (0600).
    [[nodiscard]] static tl::expected<NewFile, int> create(const QString& prefix);
    NewFile(NewFile&& other) noexcept;
    NewFile& operator=(NewFile&&) = delete;
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile();

    [[nodiscard]] int write(const QByteArray& content);
    [[nodiscard]] int setOwner(uid_t owner, gid_t group, mode_t mode);
    /// As its folder has new files (newFileMode()). It is nobody else's before.
    [[nodiscard]] int followFolder();
    [[nodiscard]] int flush();
    /// On a file system without a journal, as sticks have it: only the order of flushes keeps it in order.
    [[nodiscard]] bool isOnFat() const;
    [[nodiscard]] int takePlace(const QString& path);
    /// As takePlace(), but only where nothing stands, also no link: else EEXIST.
    [[nodiscard]] int takeFreePlace(const QString& path);
    /// Waits until its whole file system is on the disk.
    [[nodiscard]] int flushFileSystem();

private:
    NewFile(int opened, QByteArray path) : handle{opened}, name{std::move(path)} {}
    [[nodiscard]] int setMode(mode_t mode);
    int handle;
    QByteArray name; ///< empty once it has taken its place
};

/// Removes the temporary files of that prefix that programs left when they were killed.
void removeDeadFiles(const QString& prefix);

} // namespace zel

#include "store/FileMode.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <fstream>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <vector>

namespace zel {

namespace {

// The system's form of an access list: a header, then entries of tag, permissions and whom they are about.
constexpr std::size_t headerLength = 4, entryLength = 8, mostEntries = 256;
enum Tag : quint16 { ownGroup = 0x04, mask = 0x10, others = 0x20 };

/// \return the permissions of the group and of others; none if the folder has no list for what is made in it
std::optional<mode_t> defaultList(const QString& folder) {
    std::vector<char> list(headerLength + entryLength * mostEntries);
    const ssize_t size = ::getxattr(QFile::encodeName(folder).constData(), "system.posix_acl_default",
                                    list.data(), list.size());
    if (size <= static_cast<ssize_t>(headerLength)) return std::nullopt;
    mode_t group = 0;
    mode_t other = 0;
    bool isMasked = false;
    for (std::size_t at = headerLength; at + entryLength <= static_cast<std::size_t>(size);
         at += entryLength) {
        const auto tag = qFromLittleEndian<quint16>(&list.at(at));
        const mode_t allowed = qFromLittleEndian<quint16>(&list.at(at + 2)) & 06U;
        if (tag == others) other = allowed;
        if (tag == mask || (tag == ownGroup && !isMasked)) group = allowed;
        isMasked = isMasked || tag == mask;
    }
    return group << 3U | other;
}

/// Asking umask() means setting it, for all threads. \return 077 if the system does not tell
mode_t withheld() {
    std::ifstream status{"/proc/self/status"};
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("Umask:")) return static_cast<mode_t>(std::stoul(line.substr(6), nullptr, 8));
    return 077;
}

} // namespace

mode_t sharedByFolder(const QString& folder) {
    if (const auto listed = defaultList(folder)) return *listed;
    struct stat status {};
    if (::stat(QFile::encodeName(folder).constData(), &status) != 0) return 0;
    return (status.st_mode & S_ISGID) != 0 ? status.st_mode & 060U : 0;
}

mode_t newFileMode(const QString& folder) {
    const auto listed = defaultList(folder); // which the system, too, prefers to what the user withholds
    return 0600U | (listed ? *listed : sharedByFolder(folder) & ~withheld());
}

bool makePrivateFolder(const QString& path) {
    if (QFileInfo{path}.isDir()) return true;
    const QString above = QFileInfo{path}.path();
    if (above == path || !makePrivateFolder(above)) return false;
    return ::mkdir(QFile::encodeName(path).constData(), 0700) == 0 || QFileInfo{path}.isDir();
}

} // namespace zel

#include "store/Privacy.h"

#include "store/BackupRules.h"
#include "store/FileMode.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <sys/stat.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr mode_t everythingOfOthers = 077, readingOfOthers = 044, enteringOfOthers = 011;

mode_t modeOf(const QString& path) {
    struct stat status {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777U : 0;
}

/// Through all the folders that the file really lies in.
bool othersMayEnter(const QString& folder) {
    for (QString at = QFileInfo{folder}.canonicalFilePath(); !at.isEmpty(); at = QFileInfo{at}.path()) {
        if ((modeOf(at) & enteringOfOthers) == 0) return false;
        if (at == u"/"_s) return true;
    }
    return false;
}

/// The data file's own and its copies', in that order.
QStringList foldersOf(const QString& dataFile) {
    const QString own = QFileInfo{dataFile}.path();
    const QString copies = own + u"/Backups"_s;
    return QFileInfo{copies}.isDir() ? QStringList{own, copies} : QStringList{own};
}

/// Links followed: their own permissions mean nothing.
QStringList filesOf(const QString& dataFile) {
    const QDir own{QFileInfo{dataFile}.path()};
    QStringList found{dataFile, own.filePath(u"Unsaved.json"_s)};
    const QDir copies{own.filePath(u"Backups"_s)};
    for (const QString& name : copies.entryList(QDir::Files))
        if (backupOfName(name)) found += copies.filePath(name);
    for (QString& path : found)
        path = QFileInfo{path}.canonicalFilePath();
    found.removeAll(QString{}); // that are not there
    return found;
}

bool isExposed(const QString& file) {
    const QString folder = QFileInfo{file}.path();
    return (modeOf(file) & readingOfOthers & ~sharedByFolder(folder)) != 0 && othersMayEnter(folder);
}

/// \return the system's error number, 0 for success
int takeFromOthers(const QString& path, mode_t left) {
    const mode_t mode = modeOf(path);
    if ((mode & everythingOfOthers & ~left) == 0) return 0;
    return ::chmod(QFile::encodeName(path).constData(), mode & (~everythingOfOthers | left)) == 0 ? 0 : errno;
}

bool isMine(const QString& path) { return QFileInfo{path}.ownerId() == ::geteuid() || ::geteuid() == 0; }

StoreError notPrivate(const QString& path, int error) {
    // Such a file system takes the call without an effect, or refuses it to the owner.
    if (error == 0 || (error == EPERM && isMine(path)) || error == ENOTSUP)
        return {StoreErrorCode::noPermissions, path, {}};
    return {StoreErrorCode::notMadePrivate, path, QString::fromLocal8Bit(std::strerror(error))};
}

} // namespace

QStringList readableByOthers(const QString& dataFile) {
    QStringList files = filesOf(dataFile);
    files.removeIf([](const QString& file) { return !isExposed(file); });
    return files;
}

std::vector<StoreError> makePrivate(const QString& dataFile) {
    std::vector<StoreError> left;
    for (const QString& file : filesOf(dataFile)) {
        const int error = takeFromOthers(file, sharedByFolder(QFileInfo{file}.path()));
        if (isExposed(file)) left.push_back(notPrivate(file, error));
    }
    // A folder that cannot be closed gives nothing away by itself.
    for (const QString& folder : foldersOf(dataFile))
        if (sharedByFolder(folder) == 0) std::ignore = takeFromOthers(folder, 0);
    std::erase_if(left, [](const StoreError& error) { return !isExposed(error.path); });
    return left;
}

} // namespace zel

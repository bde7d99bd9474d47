#include "store/DataFile.h"

#include "store/AtomicFile.h"
#include "store/FileLock.h"
#include "store/FileMode.h"
#include "store/Log.h"
#include "store/SharedFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

// Another program's write takes a fraction of it.
constexpr std::chrono::seconds longestWaitForOthers{3};
constexpr std::chrono::milliseconds pauseWhileWaiting{20};

constexpr auto ownersAlone = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

QString targetFile(const StorePaths& paths) { return paths.applicationFolder + u"/.target"_s; }

tl::unexpected<StoreError> refused(StoreErrorCode code, const QString& path) {
    return tl::unexpected{StoreError{code, path, {}}};
}

tl::expected<QByteArray, StoreError> checkedBytes(XmlDocument document, const QString& path) {
    auto bytes = document.serialise();
    document = {}; // so that there are never two trees in memory
    if (!bytes) return tl::unexpected{StoreError{StoreErrorCode::writeFailed, path, bytes.error()}};
    if (bytes->size() > largestFile)
        return tl::unexpected{StoreError{StoreErrorCode::unreadable, path, qtTrId("XmlTooLarge")}};
    // Nothing that could not be read again ever takes the file's place. This costs a quarter of the time of a
    // change.
    if (const auto readAgain = XmlDocument::parse(*bytes); !readAgain)
        return tl::unexpected{StoreError{StoreErrorCode::unreadable, path, readAgain.error()}};
    return std::move(*bytes);
}

/// A link stands there also where what it leads to is out of reach, as a share may be, and so does a file
/// that cannot be looked at: neither is to be made anew.
bool isPlaceFree(const QString& path) {
    struct stat status {};
    return ::lstat(QFile::encodeName(path).constData(), &status) != 0
           && (errno == ENOENT || errno == ENOTDIR);
}

/// The file that a change really replaces, so that programs that reach it by different links take turns.
QString linksFollowed(const QString& path) {
    const QString real = QFileInfo{path}.canonicalFilePath();
    return real.isEmpty() ? path : real;
}

/// What a demonstration leaves beside its data file.
QString markBeside(const QString& dataFile) { return QFileInfo{dataFile}.path() + u"/Demonstration"_s; }

/// Also one that is reached by a link from elsewhere.
bool isMarked(const QString& dataFile) {
    return QFileInfo::exists(markBeside(dataFile)) || QFileInfo::exists(markBeside(linksFollowed(dataFile)));
}

} // namespace

DataFile::DataFile(StorePaths storePaths, Clock& wallClock) : paths{std::move(storePaths)}, clock{wallClock} {
    if (isMarked(getZELXMLPath())) paths.isDemonstration = true;
}

QString DataFile::folder() const { return paths.home + u"/Library/Application Support/ZELMac"_s; }

QString DataFile::getZELXMLPath() const {
    qCDebug(lcStore, "XML folder:%s", qUtf8Printable(paths.home));
    return folder() + u"/ZEL.xml"_s;
}

QString DataFile::getZELXMLPath_Old() const { return paths.applicationFolder + u"/ZEL.xml"_s; }

QString DataFile::getTargetString() const {
    const QByteArray content = readFile(targetFile(paths)).value_or(QByteArray{});
    const QString target = QString::fromUtf8(content.split('\n').constFirst()).trimmed();
    return target.isEmpty() ? u"pad"_s : target;
}

void DataFile::checkAndMakeTargetFile() const {
    const QString path = targetFile(paths);
    if (QFileInfo::exists(path)) return;
    if (const auto result = replaceFile(path, "pad"); result) {
        QFile::setPermissions(path,
                              QFile::permissions(path) | QFileDevice::ReadGroup | QFileDevice::ReadOther);
        qCInfo(lcStore, "File successfully written to %s", qUtf8Printable(path));
    } else {
        qCInfo(lcStore, "Error writing file: %s", qUtf8Printable(result.error().detail));
    }
}

StoreResult DataFile::checkXMLFileExist() const {
    const QString path = getZELXMLPath();
    const bool lacksMark = paths.isDemonstration && !isMarked(path);
    if (StoreResult marked = lacksMark ? mark() : StoreResult{}; !marked) return marked;
    const bool isThere = !isPlaceFree(path);
    qCInfo(lcStore, "%s  file %s exists", qUtf8Printable(path), isThere ? " does " : " does not ");
    if (!isThere) return create();
    removeDeadReplacements(path);
    return {};
}

/// Before there is anything that could leave the program without it. Another start may do the same.
StoreResult DataFile::mark() const {
    const QString path = getZELXMLPath();
    std::ignore = makePrivateFolder(folder()); // without it, the next step fails
    StoreResult made = makeFile(markBeside(path), {});
    return isMarked(path) ? StoreResult{} : made;
}

StoreResult DataFile::create() const {
    const QString path = getZELXMLPath();
    StoreResult result;
    // Without a folder, each of the next steps fails and is told.
    if (makePrivateFolder(folder())) result = flushNewFolder(folder());
    if (sharedByFolder(folder()) == 0) QFile::setPermissions(folder(), ownersAlone | QFileDevice::ExeOwner);
    FileLock lock{path};
    if (StoreResult turn = takeTurn(lock); !turn && turn.error().code == StoreErrorCode::busy) return turn;
    if (isPlaceFree(path)) moveOldXml();
    if (isPlaceFree(path)) result = result.and_then([this] { return copyTemplate(); });
    if (isPlaceFree(path)) return refused(StoreErrorCode::notCreated, path);
    const bool isOthers = !result && result.error().code == StoreErrorCode::alreadyExists;
    return isOthers ? StoreResult{} : result;
}

StoreResult DataFile::copyTemplate() const {
    const QString source = paths.templateFolder + u"/ZEL_"_s + getTargetString() + u".xml"_s;
    QFile file{source}; // within the program, as a rule
    StoreResult copied = refused(StoreErrorCode::notReadable, source);
    if (file.open(QIODevice::ReadOnly)) copied = makeFile(getZELXMLPath(), file.readAll());
    qCInfo(lcStore, "copy from %s to %s %s", qUtf8Printable(source), qUtf8Printable(getZELXMLPath()),
           copied ? "success" : "fail");
    return copied;
}

/// The old one goes when the new one is on the disk.
void DataFile::moveOldXml() const {
    const QString old = getZELXMLPath_Old();
    if (!QFileInfo::exists(old)) return;
    const auto content = readFile(old);
    if (!content || !makeFile(getZELXMLPath(), *content) || !QFile::remove(old))
        qCWarning(lcStore, "The data file of an older version, %s, could not be moved", qUtf8Printable(old));
}

bool DataFile::isWritable() const {
    const QFileInfo file{getZELXMLPath()};
    const QFileInfo target{file.isSymLink() ? file.canonicalFilePath() : file.filePath()};
    return target.isWritable() && QFileInfo{target.path()}.isWritable();
}

tl::expected<XmlDocument, StoreError> DataFile::readDocument(const QString& path) {
    auto content = readFile(path);
    if (!content) return tl::unexpected{content.error()};
    const auto refused = [&path](const QString& why) {
        return tl::unexpected{StoreError{StoreErrorCode::notParsed, path, why}};
    };
    auto document = XmlDocument::parse(std::move(*content));
    if (!document) return refused(document.error());
    const std::string_view root{document->root().name()};
    if (root != "ZEL") return refused(qtTrId("XmlWrongRoot").arg(QString::fromUtf8(root.data())));
    return std::move(*document);
}

tl::expected<XmlDocument, StoreError> DataFile::read() const {
    const QString path = getZELXMLPath();
    auto document = readDocument(path);
    if (document) qCInfo(lcStore, "xml data loaded from filepath:%s", qUtf8Printable(path));
    return document;
}

StoreResult DataFile::takeTurn(FileLock& lock) const {
    using Attempt = FileLock::Attempt;
    const WallTime start = clock.now();
    for (Attempt attempt = lock.tryTake(); attempt != Attempt::taken; attempt = lock.tryTake()) {
        if (attempt == Attempt::blocked) return refused(StoreErrorCode::lockBlocked, lock.path());
        if (attempt == Attempt::failed) return tl::unexpected{writeError(lock.error(), getZELXMLPath())};
        if (clock.now() - start > longestWaitForOthers) return refused(StoreErrorCode::busy, getZELXMLPath());
        clock.sleep(pauseWhileWaiting);
    }
    return {};
}

StoreResult DataFile::editInTurn(const Change& change, const std::function<void()>& written) const {
    const QString path = getZELXMLPath();
    FileLock lock{linksFollowed(path)};
    if (StoreResult turn = takeTurn(lock); !turn) return turn;
    const FileStamp asRead = stamp();
    auto document = read();
    if (!document) return tl::unexpected{document.error()};
    if (change(document->root()) == Edit::unchanged) return {};
    const auto bytes = checkedBytes(std::move(*document), path);
    if (!bytes) return tl::unexpected{bytes.error()};
    // By a program that takes no turns, or while this one was cut off from the share, and its turn given on.
    if (stamp() != asRead) return refused(StoreErrorCode::changedElsewhere, path);
    StoreResult replaced = replaceFile(path, *bytes);
    if (replaced) qCInfo(lcStore, "write document out...");
    if (isInPlace(replaced)) written();
    return replaced;
}

StoreResult DataFile::replace(const QByteArray& content, const std::function<StoreResult()>& keep) const {
    const QString path = getZELXMLPath();
    FileLock lock{linksFollowed(path)};
    if (StoreResult turn = takeTurn(lock); !turn) return turn;
    const FileStamp asKept = stamp();
    if (StoreResult kept = keep(); !kept) return kept;
    if (stamp() != asKept) return refused(StoreErrorCode::changedElsewhere, path);
    return replaceFile(path, content);
}

StoreResult DataFile::replaceUnread(const QByteArray& content, const QString& kept,
                                    const FileStamp& found) const {
    const QString path = getZELXMLPath();
    FileLock lock{linksFollowed(path)};
    if (StoreResult turn = takeTurn(lock); !turn) return turn;
    if (stamp() != found) return refused(StoreErrorCode::changedElsewhere, path);
    return replaceAndKeep(path, content, kept);
}

FileStamp stampOf(const QString& path) {
    const QByteArray name = QFile::encodeName(linksFollowed(path));
    lookAnewBeside(name);
    struct stat status {};
    const int opened = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    const bool isKnown = (opened < 0 ? ::stat(name.constData(), &status) : ::fstat(opened, &status)) == 0;
    if (opened >= 0) ::close(opened);
    if (!isKnown) return {};
    const auto time = [](const timespec& at) {
        return std::chrono::seconds{at.tv_sec} + std::chrono::nanoseconds{at.tv_nsec};
    };
    return {status.st_dev, status.st_ino, status.st_size, time(status.st_mtim), time(status.st_ctim)};
}

FileStamp DataFile::stamp() const { return stampOf(getZELXMLPath()); }

StoreResult DataFile::edit(const Change& change, const std::function<void()>& written) const {
    StoreResult result = editInTurn(change, written);
    if (!result) qCWarning(lcStore, "Could not write document out...");
    return result;
}

} // namespace zel

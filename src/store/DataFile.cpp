#include "store/DataFile.h"

#include "store/AtomicFile.h"
#include "store/FileLock.h"
#include "store/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstring>
#include <string_view>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

// Another program's write takes a fraction of it.
constexpr std::chrono::seconds longestWaitForOthers{3};
constexpr std::chrono::milliseconds pauseWhileWaiting{20};

QString targetFile(const StorePaths& paths) { return paths.applicationFolder + u"/.target"_s; }

tl::unexpected<StoreError> refused(StoreErrorCode code, const QString& path) {
    return tl::unexpected{StoreError{code, path, {}}};
}

StoreResult replaceDocument(XmlDocument document, const QString& path) {
    const auto bytes = document.serialise();
    document = {}; // so that there are never two trees in memory
    if (!bytes) return tl::unexpected{StoreError{StoreErrorCode::writeFailed, path, bytes.error()}};
    if (bytes->size() > largestFile)
        return tl::unexpected{StoreError{StoreErrorCode::unreadable, path, qtTrId("XmlTooLarge")}};
    // Nothing that could not be read again ever takes the file's place. This costs a quarter of the time of a
    // change.
    if (const auto readAgain = XmlDocument::parse(*bytes); !readAgain)
        return tl::unexpected{StoreError{StoreErrorCode::unreadable, path, readAgain.error()}};
    return replaceFile(path, *bytes);
}

/// The file that a change really replaces, so that programs that reach it by different links take turns.
QString linksFollowed(const QString& path) {
    const QString real = QFileInfo{path}.canonicalFilePath();
    return real.isEmpty() ? path : real;
}

} // namespace

DataFile::DataFile(StorePaths storePaths, Clock& wallClock)
    : paths{std::move(storePaths)}, clock{wallClock} {}

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
    const bool exists = QFileInfo::exists(path);
    qCInfo(lcStore, "%s  file %s exists", qUtf8Printable(path), exists ? " does " : " does not ");
    if (exists) {
        removeDeadReplacements(path);
        return {};
    }
    QDir{}.mkpath(folder());
    QFile::setPermissions(folder(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    moveOldXml();
    // Tried after a move as well: the copy then fails, since the file is there, and the moved file is kept.
    const QString source = paths.templateFolder + u"/ZEL_"_s + getTargetString() + u".xml"_s;
    const bool copied = QFile::copy(source, path);
    if (copied) QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    qCInfo(lcStore, "copy from %s to %s %s", qUtf8Printable(source), qUtf8Printable(path),
           copied ? "success" : "fail");
    if (!QFileInfo::exists(path)) return refused(StoreErrorCode::notCreated, path);
    return {};
}

void DataFile::moveOldXml() const {
    const QString old = getZELXMLPath_Old();
    if (QFileInfo::exists(getZELXMLPath()) || !QFileInfo::exists(old)) return;
    if (!QFile::rename(old, getZELXMLPath())) {
        qCWarning(lcStore, "The data file of an older version, %s, could not be moved", qUtf8Printable(old));
    }
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

StoreResult DataFile::editInTurn(const Change& change) const {
    const QString path = getZELXMLPath();
    FileLock lock{linksFollowed(path)};
    if (StoreResult turn = takeTurn(lock); !turn) return turn;
    auto document = read();
    if (!document) return tl::unexpected{document.error()};
    if (change(document->root()) == Edit::unchanged) return {};
    StoreResult written = replaceDocument(std::move(*document), path);
    if (written) qCInfo(lcStore, "write document out...");
    return written;
}

StoreResult DataFile::replace(const QByteArray& content, const std::function<StoreResult()>& keep) const {
    const QString path = getZELXMLPath();
    FileLock lock{linksFollowed(path)};
    if (StoreResult turn = takeTurn(lock); !turn) return turn;
    if (StoreResult kept = keep(); !kept) return kept;
    return replaceFile(path, content);
}

StoreResult DataFile::edit(const Change& change) const {
    StoreResult result = editInTurn(change);
    if (!result) qCWarning(lcStore, "Could not write document out...");
    return result;
}

} // namespace zel

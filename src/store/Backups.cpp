#include "store/Backups.h"

#include "store/AtomicFile.h"
#include "store/CopyContent.h"
#include "store/FileMode.h"
#include "store/Log.h"
#include "store/Records.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 shareOfDisk = 10;

DayNumber lastDay(const Records& records) {
    DayNumber last = noDay;
    for (const auto& [ID, readings] : records.mdReading) {
        for (const auto& reading : readings)
            if (!reading.isUndated()) last = std::max(last, reading.day);
    }
    return last;
}

std::size_t readingCount(const Records& records) {
    std::size_t count = 0;
    for (const auto& [ID, readings] : records.mdReading)
        count += readings.size();
    return count;
}

tl::unexpected<StoreError> refusal(StoreErrorCode code, const QString& path) {
    return tl::unexpected{StoreError{code, path, {}}};
}

/// A folder that could not be flushed takes copies all the same, and that is told behind them.
bool isThere(const StoreResult& made) { return made || made.error().code == StoreErrorCode::notFlushed; }

bool failedWith(const tl::expected<QString, StoreError>& result, StoreErrorCode code) {
    return !result && result.error().code == code;
}

/// A copy made in the same second has the place.
QString freeName(const QString& folder, BackupKind kind, Instant now) {
    QString name = backupName(kind, now);
    while (QFileInfo::exists(folder + u'/' + name))
        name = backupName(kind, now += std::chrono::seconds{1});
    return name;
}

} // namespace

QString describe(const BackupContent& content, const QString& dateFormat) {
    const QString patients = qtTrId("BackupPatients", static_cast<int>(content.patients));
    const QString readings = qtTrId("BackupReadings", static_cast<int>(content.readings));
    if (content.lastReading == noDay) return patients + qtTrId(", ") + readings;
    return qtTrId("BackupLast").arg(patients, readings, dayText(content.lastReading, dateFormat));
}

tl::expected<BackupContent, StoreError> contentOfCopy(const QString& path) {
    const auto document = DataFile::readDocument(path);
    if (!document) return tl::unexpected{document.error()};
    const Records records = Records::read(document->root(), LocalZone{});
    return BackupContent{records.gaPatient.size(), readingCount(records), lastDay(records)};
}

Instant Backups::now() const { return std::chrono::floor<std::chrono::milliseconds>(clock.now()); }

QString Backups::folder() const { return QFileInfo{file.getZELXMLPath()}.path() + u"/Backups"_s; }

QString Backups::path(const QString& name) const { return folder() + u'/' + name; }

std::vector<Backup> Backups::list() const {
    std::vector<Backup> found;
    for (const QFileInfo& info : QDir{folder()}.entryInfoList(QDir::Files)) {
        auto copy = backupOfName(info.fileName());
        if (!copy) continue;
        copy->size = info.size();
        found.push_back(std::move(*copy));
    }
    sortNewestFirst(found);
    return found;
}

tl::expected<BackupContent, StoreError> Backups::content(const QString& name) const {
    if (!backupOfName(name) || !QFileInfo::exists(path(name)))
        return refusal(StoreErrorCode::noSuchBackup, name);
    return contentOfCopy(path(name));
}

std::optional<ReadBackup> Backups::newest(std::size_t patients) const {
    for (const Backup& copy : list())
        if (const auto held = content(copy.name); held && held->patients >= patients)
            return ReadBackup{copy, *held};
    return std::nullopt;
}

/// A folder that is there may be shared on purpose.
StoreResult Backups::makeFolder() const {
    if (QFileInfo{folder()}.isDir()) return {};
    if (!makePrivateFolder(folder())) return refusal(StoreErrorCode::notWritable, folder());
    return flushNewFolder(folder());
}

void Backups::removeDead() const {
    for (const QString& name : QDir{folder()}.entryList({u".*.new-*"_s}, QDir::Files | QDir::Hidden))
        removeDeadReplacements(path(name.sliced(1, name.lastIndexOf(u".new-"_s) - 1)));
}

StoreResult Backups::copyTo(const QString& name) const {
    StoreResult made = makeFolder();
    if (!isThere(made)) return made;
    const auto bytes = readFile(file.getZELXMLPath());
    if (!bytes) return tl::unexpected{bytes.error()};
    StoreResult copied = replaceFile(path(name), *bytes);
    return copied ? made : copied;
}

/// A tenth of what would be free without the daily copies.
qint64 Backups::room() const {
    qint64 bytes = QStorageInfo{folder()}.bytesAvailable();
    for (const Backup& copy : list())
        if (copy.kind == BackupKind::daily) bytes += copy.size;
    return bytes / shareOfDisk;
}

StoreResult Backups::keepDaily() const {
    const QString name = backupName(BackupKind::daily, now());
    if (QFileInfo{path(name)}.size() > 0) return {}; // a power cut may have left an empty one
    StoreResult made = makeFolder();
    if (!isThere(made)) return made;
    const qint64 most = room();
    // What does not fit pushes nothing out.
    if (QFileInfo{file.getZELXMLPath()}.size() > most)
        return refusal(StoreErrorCode::noRoomForBackup, folder());
    if (StoreResult copied = copyTo(name); !copied) return copied;
    for (const Backup& copy : superfluousBackups(list(), most)) {
        const bool isRemoved = QFile::remove(path(copy.name));
        qCInfo(lcStore, "backup %s %s", qUtf8Printable(copy.name),
               isRemoved ? "removed" : "could not be removed");
    }
    return made;
}

tl::expected<QString, StoreError> Backups::create() const {
    QString name = freeName(folder(), BackupKind::made, now());
    if (const StoreResult copied = copyTo(name); !copied) return tl::unexpected{copied.error()};
    return name;
}

tl::expected<QString, StoreError> Backups::restore(const QString& name) const {
    if (const auto readable = content(name); !readable) return tl::unexpected{readable.error()};
    const auto bytes = readFile(path(name));
    if (!bytes) return tl::unexpected{bytes.error()};
    const FileStamp found = file.stamp();
    auto kept = replaceCopied(*bytes);
    // A copy is better than what a disk may give no more, and it may at the second try.
    if (failedWith(kept, StoreErrorCode::readFailed)) kept = replaceCopied(*bytes);
    const bool isUncopied =
        failedWith(kept, StoreErrorCode::readFailed) || failedWith(kept, StoreErrorCode::tooLarge);
    return isUncopied ? replaceUnread(*bytes, found) : kept;
}

Backups::Kept Backups::replaceCopied(const QByteArray& content) const {
    QString kept;
    const auto keep = [&]() -> StoreResult {
        if (!QFileInfo::exists(file.getZELXMLPath())) return {};
        const auto present = DataFile::readDocument(file.getZELXMLPath());
        if (!present && present.error().code != StoreErrorCode::notParsed)
            return tl::unexpected{present.error()}; // nothing of it could be copied
        kept = freeName(folder(), present ? BackupKind::replaced : BackupKind::damaged, now());
        StoreResult copied = copyTo(kept);
        const bool mayBeLost = !copied && copied.error().code == StoreErrorCode::notFlushed;
        if (mayBeLost)
            copied.error() = {StoreErrorCode::writeFailed, file.getZELXMLPath(), copied.error().detail};
        return copied;
    };
    return file.replace(content, keep).map([&kept] { return kept; });
}

Backups::Kept Backups::replaceUnread(const QByteArray& content, const FileStamp& found) const {
    const QString kept = freeName(folder(), BackupKind::damaged, now());
    return file.replaceUnread(content, path(kept), found).map([&kept] { return QString{kept}; });
}

} // namespace zel

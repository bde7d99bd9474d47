#include "store/SecondFolder.h"

#include "store/AtomicFile.h"
#include "store/FileLock.h"
#include "store/FileMode.h"
#include "store/Log.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QStorageInfo>
#include <QSysInfo>

#include <algorithm>
#include <tuple>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

using enum SecondFolderProblem;

constexpr qint64 shareOfSecondDisk = 10;
constexpr qint64 largestRecord = qint64{64} * 1024;

QString recordPath(const QString& dataFile) { return QFileInfo{dataFile}.path() + u"/BackupFolder.json"_s; }

/// This computer and the data file's place on it.
QString placeOf(const QString& dataFile) {
    const QByteArray words = QSysInfo::machineUniqueId() + '\n' + dataFile.toUtf8();
    return QString::fromLatin1(QCryptographicHash::hash(words, QCryptographicHash::Sha256).toHex().left(16));
}

QString newMark() { return u"%1"_s.arg(QRandomGenerator::system()->generate64(), 16, 16, QLatin1Char{'0'}); }

bool isMark(const QString& text) {
    return text.size() == 16 && std::ranges::all_of(text, [](QChar c) {
               return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f');
           });
}

tl::unexpected<SecondFolderError> refusal(SecondFolderProblem problem, const QString& folder,
                                          const QString& detail = {}) {
    return tl::unexpected{SecondFolderError{problem, folder, detail}};
}

tl::expected<QJsonObject, SecondFolderError> readRecord(const QString& dataFile) {
    const QString path = recordPath(dataFile);
    if (!QFileInfo::exists(path)) return QJsonObject{};
    if (QFileInfo{path}.size() > largestRecord) return refusal(recordBroken, path);
    const auto content = readFile(path);
    if (!content) return refusal(recordBroken, path, content.error().detail);
    const QJsonObject record = QJsonDocument::fromJson(*content).object();
    if (!isMark(record[u"mark"_s].toString()) || !record[u"folder"_s].isString())
        return refusal(recordBroken, path);
    if (record[u"place"_s].toString() != placeOf(dataFile)) return QJsonObject{};
    return record;
}

/// In one's turn, from reading it until it is written.
SecondFolderResult writeRecord(const QString& dataFile, const QJsonObject& record) {
    const QString path = recordPath(dataFile);
    const StoreResult written = replaceFile(path, QJsonDocument{record}.toJson());
    if (!isInPlace(written)) return refusal(notRecorded, path, written.error().detail);
    return {};
}

/// Another program has the record in its hands for a moment only, and is not waited for.
SecondFolderResult takeTurn(FileLock& lock, const QString& path) {
    if (!makePrivateFolder(QFileInfo{path}.path())) return refusal(notRecorded, path);
    switch (lock.tryTake()) {
    case FileLock::Attempt::taken: return {};
    case FileLock::Attempt::held:
        return refusal(notRecorded, path, describe(StoreError{StoreErrorCode::busy, path, {}}));
    case FileLock::Attempt::blocked:
        return refusal(notRecorded, path, describe(StoreError{StoreErrorCode::lockBlocked, lock.path(), {}}));
    case FileLock::Attempt::failed: break;
    }
    return refusal(notRecorded, path, writeError(lock.error(), path).detail);
}

/// Its name, too, outlasts a stick that is pulled out: it is never made again.
SecondFolderResult makeCopiesFolder(const SecondFolder& named) {
    if (!QFileInfo{named.folder}.isDir()) return refusal(away, named.folder);
    if (named.isThere()) return {};
    if (!makePrivateFolder(named.copies())) return refusal(failed, named.folder);
    const StoreResult flushed = flushNewFolder(named.copies());
    if (flushed) return {};
    QDir{}.rmdir(named.copies());
    return refusal(failed, named.folder, flushed.error().detail);
}

qint64 roomThere(const SecondFolder& there) {
    qint64 bytes = QStorageInfo{there.copies()}.bytesAvailable();
    for (const Backup& copy : there.list())
        if (copy.kind == BackupKind::daily) bytes += copy.size;
    return bytes / shareOfSecondDisk;
}

std::optional<Backup> copyOfDay(const QString& folder, DayNumber day) {
    for (const QFileInfo& file : QDir{folder}.entryInfoList(QDir::Files)) {
        auto copy = backupOfName(file.fileName());
        if (!copy || copy->kind != BackupKind::daily || copy->day != day) continue;
        copy->size = file.size();
        return copy;
    }
    return std::nullopt;
}

/// Those that programs left that were ended while they copied, on whatever day.
void removeDeadCopies(const SecondFolder& there) {
    const QString mark = u".new-"_s;
    for (const QString& name :
         QDir{there.copies()}.entryList({u".ZEL-*.new-*"_s}, QDir::Files | QDir::Hidden))
        removeDeadReplacements(there.path(name.mid(1, name.lastIndexOf(mark) - 1)));
}

SecondFolderResult makeCopy(const QString& backups, const Backup& copy, const SecondFolder& to) {
    removeDeadCopies(to);
    const auto bytes = readFile(backups + u'/' + copy.name);
    if (!bytes) return refusal(failed, to.folder, describe(bytes.error()));
    const StoreResult written = replaceFile(to.path(copy.name), *bytes);
    if (written) return {};
    const StoreError& why = written.error();
    if (isInPlace(written)) return refusal(notFlushed, to.folder, why.detail);
    return refusal(failed, to.folder, why.detail.isEmpty() ? describe(why) : why.detail);
}

/// Perhaps it was told as one that may not outlast a power cut: it is done only once it does.
SecondFolderResult makeLast(const SecondFolder& to, const Backup& copy) {
    const StoreResult flushed = flushAgain(to.path(copy.name));
    return flushed ? SecondFolderResult{} : refusal(notFlushed, to.folder, flushed.error().detail);
}

} // namespace

QString SecondFolder::copies() const { return folder + u"/ZEL-"_s + mark; }

bool SecondFolder::isThere() const { return QFileInfo{copies()}.isDir(); }

std::vector<Backup> SecondFolder::list() const {
    std::vector<Backup> found;
    for (const QFileInfo& file : QDir{copies()}.entryInfoList(QDir::Files)) {
        auto copy = backupOfName(file.fileName());
        if (!copy) continue;
        copy->size = file.size();
        found.push_back(std::move(*copy));
    }
    sortNewestFirst(found);
    return found;
}

QString describe(const SecondFolderError& error) {
    const auto sentence = [&error]() -> QString {
        switch (error.problem) {
        case away: return qtTrId("SecondFolderAway");
        case noRoom: return qtTrId("SecondFolderNoRoom");
        case failed: return qtTrId("SecondFolderFailed");
        case notFlushed: return qtTrId("SecondFolderNotFlushed");
        case notRecorded: return qtTrId("SecondFolderNotRecorded");
        case recordBroken: return qtTrId("SecondFolderBroken");
        }
        return {};
    };
    const QString words = sentence().arg(error.folder);
    return error.detail.isEmpty() ? words : words + u'\n' + error.detail;
}

tl::expected<std::optional<SecondFolder>, SecondFolderError> secondFolder(const QString& dataFile) {
    const auto record = readRecord(dataFile);
    if (!record) return tl::unexpected{record.error()};
    SecondFolder named{(*record)[u"folder"_s].toString(), (*record)[u"mark"_s].toString()};
    if (named.folder.isEmpty()) return std::nullopt;
    return named;
}

/// The mark stays, so that a folder that is named again goes on with its copies.
SecondFolderResult nameSecondFolder(const QString& dataFile, const QString& folder) {
    FileLock lock{recordPath(dataFile)};
    if (SecondFolderResult turn = takeTurn(lock, recordPath(dataFile)); !turn) return turn;
    QJsonObject record = readRecord(dataFile).value_or(QJsonObject{});
    const QString known = record[u"mark"_s].toString();
    const SecondFolder named{folder.isEmpty() ? folder : QFileInfo{folder}.absoluteFilePath(),
                             known.isEmpty() ? newMark() : known};
    if (!folder.isEmpty())
        if (SecondFolderResult made = makeCopiesFolder(named); !made) return made;
    record[u"folder"_s] = named.folder;
    record[u"mark"_s] = named.mark;
    record[u"place"_s] = placeOf(dataFile);
    record.remove(u"told"_s);
    return writeRecord(dataFile, record);
}

SecondFolderResult bringCopy(const QString& backups, const SecondFolder& to, DayNumber day) {
    const auto copy = copyOfDay(backups, day);
    if (!copy) return {};
    if (!to.isThere()) return refusal(away, to.folder);
    const auto there = copyOfDay(to.copies(), day);
    const bool isThere = there && there->size == copy->size;
    const qint64 most = roomThere(to);
    if (!isThere && copy->size > most) return refusal(noRoom, to.folder);
    if (auto made = isThere ? makeLast(to, *there) : makeCopy(backups, *copy, to); !made) return made;
    for (const Backup& old : superfluousBackups(to.list(), most))
        if (!QFile::remove(to.path(old.name)))
            qCInfo(lcStore, "A copy in the second folder could not be removed");
    return {};
}

tl::expected<QString, StoreError> fetchCopy(const QString& backups, const QString& path, Instant now) {
    const auto bytes = readFile(path);
    if (!bytes) return tl::unexpected{bytes.error()};
    if (!makePrivateFolder(backups))
        return tl::unexpected{StoreError{StoreErrorCode::notWritable, backups, {}}};
    QString name = backupName(BackupKind::made, now);
    while (QFileInfo::exists(backups + u'/' + name))
        name = backupName(BackupKind::made, now += std::chrono::seconds{1});
    // Whether it outlasts a power cut does not matter: it is read again from there.
    StoreResult fetched = replaceFile(backups + u'/' + name, *bytes);
    if (!isInPlace(fetched)) return tl::unexpected{fetched.error()};
    return name;
}

bool isFirstFailure(const QString& dataFile, DayNumber today) {
    FileLock lock{recordPath(dataFile)};
    const bool isOurs = takeTurn(lock, recordPath(dataFile)).has_value();
    auto record = readRecord(dataFile);
    if (!record) return true; // it cannot be noted
    if (record->isEmpty()) return false;
    if ((*record)[u"told"_s].toInt(noDay) == today) return false;
    (*record)[u"told"_s] = today;
    if (isOurs) std::ignore = writeRecord(dataFile, *record);
    return true;
}

} // namespace zel

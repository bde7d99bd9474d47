#include "store/AtomicFile.h"

#include "store/DataStore.h"
#include "store/FileImport.h"
#include "store/FileLock.h"
#include "store/NewFile.h"
#include "store/SecondFolder.h"
#include "support/BrokenFile.h"
#include "support/FullDisk.h"
#include "support/ManualClock.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <linux/magic.h>
#include <optional>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

namespace {
constexpr int noFault = 1'000'000;
int folderFlushesThatWork = noFault; ///< from now on
int interruptions = 0;               ///< of the next calls, by signals
bool isFat = false;                  ///< the file system, as far as it tells
QStringList* flushes = nullptr;      ///< where to note what is flushed, and what is still open then

bool isInterrupted() {
    if (interruptions == 0) return false;
    --interruptions;
    errno = EINTR;
    return true;
}

/// What has been removed or replaced, and is open all the same.
bool isReplacedFileOpen() {
    const QDir handles{QStringLiteral("/proc/self/fd")};
    return std::ranges::any_of(handles.entryInfoList(QDir::Files | QDir::System), [](const QFileInfo& each) {
        return each.symLinkTarget().endsWith(QLatin1StringView{"/ZEL.xml (deleted)"});
    });
}

/// Files that cannot be given away, as by all but the superuser; perhaps not even to a group.
struct Giving {
    bool toOwner = true;
    bool toGroup = true;
    uid_t lastOwner = 0;
};
Giving giving;

} // namespace

/// In the library's place: gives nothing away in fact.
extern "C" int fchown(int handle, uid_t owner, gid_t group) {
    giving.lastOwner = owner;
    const bool isOwner = owner != static_cast<uid_t>(-1);
    if (giving.toOwner && giving.toGroup) return static_cast<int>(syscall(SYS_fchown, handle, owner, group));
    if (giving.toGroup && !isOwner) return 0;
    errno = EPERM;
    return -1;
}

/// In the library's place: a file system of another kind.
extern "C" int fstatfs(int handle, struct statfs* system) noexcept {
    const auto result = static_cast<int>(syscall(SYS_fstatfs, handle, system));
    if (isFat) system->f_type = MSDOS_SUPER_MAGIC;
    return result;
}

/// In the library's place: a file on a share, where signals interrupt, or on a broken disk.
extern "C" ssize_t read(int handle, void* bytes, size_t length) {
    return isInterrupted() || zel::BrokenFile::failsFor(handle)
               ? -1
               : static_cast<ssize_t>(syscall(SYS_read, handle, bytes, length));
}

/// In the library's place: a disk whose folders cannot be flushed.
extern "C" int fsync(int handle) {
    if (isInterrupted()) return -1;
    struct stat status {};
    const bool isFolder = fstat(handle, &status) == 0 && S_ISDIR(status.st_mode);
    if (flushes != nullptr)
        flushes->push_back(QLatin1StringView{isFolder ? "folder" : "file"}
                           + QLatin1StringView{isReplacedFileOpen() ? ", old one open" : ""});
    if (isFolder && --folderFlushesThatWork < 0) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(syscall(SYS_fsync, handle));
}

namespace zel {
namespace {

using namespace Qt::StringLiterals;

struct AtomicFileTest : testing::Test {
    QTemporaryDir folder;
    QString path = folder.filePath(u"ZEL.xml"_s);

    static mode_t mode(const QString& path) {
        struct stat status {};
        stat(QFile::encodeName(path).constData(), &status);
        return status.st_mode & 0777U;
    }
    [[nodiscard]] qsizetype filesInFolder() const {
        return QDir{folder.path()}.entryList(QDir::Files | QDir::Hidden).size();
    }
};

TEST_F(AtomicFileTest, NewFilesAreTheOwnersAndPermissionsAreKept) {
    ASSERT_TRUE(replaceFile(path, "one"));
    EXPECT_EQ(mode(path), 0600U);
    QFile::setPermissions(path, QFile::permissions(path) | QFileDevice::ReadGroup);
    ASSERT_TRUE(replaceFile(path, "two"));
    EXPECT_EQ(mode(path), 0640U);
    EXPECT_EQ(readFile(path).value(), "two");
    EXPECT_EQ(filesInFolder(), 1);
}

/// The order without which FAT, cut off in between, leads a name to blocks that are free or another file's.
TEST_F(AtomicFileTest, FlushesInTheOrderThatKeepsOldOrNew) {
    ASSERT_TRUE(replaceFile(path, "one"));
    for (const bool onFat : {false, true}) {
        QStringList seen;
        flushes = &seen;
        isFat = onFat;
        const auto result = replaceFile(path, "two");
        flushes = nullptr;
        isFat = false;
        ASSERT_TRUE(result);
        const QStringList usual{u"file"_s, u"folder"_s};
        const QStringList fats{u"folder"_s, u"file"_s, u"folder, old one open"_s, u"file, old one open"_s};
        EXPECT_EQ(seen, onFat ? fats : usual);
    }
}

TEST_F(AtomicFileTest, SymbolicLinksAreFollowed) {
    const QString target = folder.filePath(u"real.xml"_s);
    ASSERT_TRUE(replaceFile(target, "one"));
    ASSERT_TRUE(QFile::link(u"real.xml"_s, path));
    ASSERT_TRUE(replaceFile(path, "two"));
    EXPECT_TRUE(QFileInfo{path}.isSymLink());
    EXPECT_EQ(readFile(target).value(), "two");
}

TEST_F(AtomicFileTest, PipesAndDevicesAreNotReplaced) {
    ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    const auto result = replaceFile(path, "one");
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().code, StoreErrorCode::notWritable);
    EXPECT_FALSE(QFileInfo{path}.isFile());
    EXPECT_EQ(readFile(path).error().code, StoreErrorCode::notReadable)
        << "and it does not wait for a writer";
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, path + u".link"_s));
    EXPECT_EQ(readFile(path + u".link"_s).error().code, StoreErrorCode::notReadable)
        << "and it does not read without end";
}

TEST_F(AtomicFileTest, FolderThatCannotBeFlushedIsNoSuccess) {
    ASSERT_TRUE(replaceFile(path, "one"));
    folderFlushesThatWork = 0;
    const auto result = replaceFile(path, "two");
    folderFlushesThatWork = noFault;
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().code, StoreErrorCode::notFlushed);
    EXPECT_EQ(readFile(path).value(), "two") << "it is in its place, as the error says";
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(AtomicFileTest, WhatASignalInterruptsIsDoneAgain) {
    interruptions = 2;
    EXPECT_TRUE(replaceFile(path, "one"));
    EXPECT_EQ(std::exchange(interruptions, 2), 0);
    EXPECT_EQ(readFile(path), "one");
    EXPECT_EQ(std::exchange(interruptions, 0), 0);
}

TEST_F(AtomicFileTest, ASecondFolderThatIsNotFlushedIsToldForWhatItIs) {
    const QTemporaryDir stick;
    const QString day = u"ZEL-2026-11-20.xml"_s;
    const QTemporaryDir backups;
    ASSERT_TRUE(replaceFile(backups.filePath(day), "<ZEL/>"));
    folderFlushesThatWork = 0;
    const auto named = nameSecondFolder(path, stick.path());
    folderFlushesThatWork = noFault;
    ASSERT_FALSE(named) << "a folder that may be gone is never made again";
    EXPECT_EQ(named.error().problem, SecondFolderProblem::failed);
    EXPECT_TRUE(QDir{stick.path()}.isEmpty());
    ASSERT_TRUE(nameSecondFolder(path, stick.path()));
    const SecondFolder second = secondFolder(path)->value();
    folderFlushesThatWork = 0;
    const auto bring = [&] { return bringCopy(backups.path(), second, backupOfName(day)->day); };
    for (const char* time : {"copied", "there already"}) {
        const auto brought = bring();
        ASSERT_FALSE(brought) << time;
        EXPECT_EQ(brought.error().problem, SecondFolderProblem::notFlushed) << time;
        EXPECT_EQ(readFile(second.path(day)), "<ZEL/>");
    }
    folderFlushesThatWork = noFault;
    EXPECT_TRUE(bring());
}

TEST_F(AtomicFileTest, ChangeThatIsNotFlushedIsShownAllTheSame) {
    ManualClock clock;
    DataStore store{{folder.path(), folder.path(), folder.path()}, clock};
    QDir{}.mkpath(QFileInfo{store.getZELXMLPath()}.path());
    ASSERT_TRUE(
        replaceFile(store.getZELXMLPath(), "<ZEL><SystemSetting/><Patient><ID>A</ID></Patient></ZEL>"));
    ASSERT_TRUE(store.loadXML());
    store.setCurrentID(u"A"_s);
    QString told;
    QObject::connect(&store, &DataStore::notBackedUp, [&told](const QString& why) { told = why; });
    folderFlushesThatWork = 0;
    const auto added = store.addCommentForCurID({});
    folderFlushesThatWork = noFault;
    ASSERT_FALSE(added);
    EXPECT_EQ(added.error().code, StoreErrorCode::notFlushed);
    EXPECT_EQ(store.getCommentForCurID().size(), 1U);
    EXPECT_FALSE(store.isChangedElsewhere()) << "it was written here";
    EXPECT_TRUE(told.startsWith(u"ExportNotFlushed"_s)) << "the copy is there: " << told.toStdString();
    const QString other = folder.filePath(u"other.xml"_s);
    ASSERT_TRUE(replaceFile(other, "<ZEL><Patient><ID>B</ID></Patient></ZEL>"));
    folderFlushesThatWork = 0;
    const auto imported = store.importXml(other);
    folderFlushesThatWork = noFault;
    EXPECT_EQ(imported.error().code, ImportRefusalCode::notFlushed) << "it was taken";
    ASSERT_TRUE(replaceFile(other, "<ZEL><Patient><ID>C</ID></Patient></ZEL>"));
    FileImport twice{store};
    twice.add(other);
    twice.add(other);
    folderFlushesThatWork = 0;
    const auto both = twice.finish();
    folderFlushesThatWork = noFault;
    EXPECT_EQ(both[0].result.error().code, ImportRefusalCode::notFlushed);
    EXPECT_EQ(both[1].result.error().code, ImportRefusalCode::alreadyKnown) << "by now it is";
    const auto copies = store.backups().list();
    ASSERT_EQ(copies.size(), 1U);
    for (const bool isKept : {false, true}) { // what is there, before the copy takes its place
        folderFlushesThatWork = isKept ? 1 : 0;
        const auto restored = store.restoreBackup(copies[0].name);
        folderFlushesThatWork = noFault;
        ASSERT_FALSE(restored);
        EXPECT_EQ(restored.error().code, isKept ? StoreErrorCode::notFlushed : StoreErrorCode::writeFailed);
        EXPECT_EQ(store.getCommentForCurID().size(), isKept ? 0U : 1U);
    }
}

TEST_F(AtomicFileTest, OwnerIsKept) {
    if (geteuid() != 0) GTEST_SKIP() << "only the superuser gives files away";
    ASSERT_TRUE(replaceFile(path, "one"));
    const QByteArray name = QFile::encodeName(path);
    ASSERT_EQ(chown(name.constData(), 1234, 1235), 0);
    ASSERT_TRUE(replaceFile(path, "two"));
    struct stat status {};
    stat(name.constData(), &status);
    EXPECT_EQ(status.st_uid, 1234U);
    EXPECT_EQ(status.st_gid, 1235U);
    EXPECT_EQ(mode(path), 0600U);
}

TEST_F(AtomicFileTest, FilesThatCannotBeGivenAwayAreReadByNoOtherGroup) {
    const uid_t self = geteuid();
    const gid_t own = getegid();
    const struct {
        Giving can;
        uid_t owner;
        gid_t group;
        mode_t mode;
    } cases[]{
        {{.toOwner = false}, self + 1, own, 0660},     // the group is the same
        {{.toOwner = false}, self + 1, own + 1, 0660}, // it is given to the group alone
        {{.toOwner = false, .toGroup = false}, self + 1, own + 1, 0600},
        {{.toOwner = false, .toGroup = false}, self + 1, own, 0660},
    };
    for (const auto& each : cases) {
        auto file = NewFile::create(path);
        ASSERT_TRUE(file);
        giving = each.can;
        EXPECT_EQ(file->setOwner(each.owner, each.group, 0660), 0);
        EXPECT_EQ(giving.lastOwner, each.group == own ? each.owner : static_cast<uid_t>(-1))
            << "the group alone";
        giving = {};
        ASSERT_EQ(file->takePlace(path), 0);
        EXPECT_EQ(mode(path), each.mode) << each.owner << ' ' << each.group;
    }
}

TEST_F(AtomicFileTest, OnlyWhatKilledProgramsLeftIsRemoved) {
    const QString prefix = folder.filePath(u".ZEL.xml.new-"_s);
    const QString dead = prefix + u"aB3xYz"_s;
    const QStringList others{path, path + u".backup"_s, prefix + u"longer-than-such-a-name"_s};
    for (const QString& each : QStringList{dead} + others)
        ASSERT_TRUE(QFile{each}.open(QIODevice::WriteOnly));
    auto live = NewFile::create(prefix);
    ASSERT_TRUE(live);
    removeDeadReplacements(path);
    EXPECT_FALSE(QFileInfo::exists(dead));
    for (const QString& each : others)
        EXPECT_TRUE(QFileInfo::exists(each)) << each.toStdString();
    EXPECT_EQ(live->takePlace(path), 0) << "the one that is being written is still there";
    ASSERT_TRUE(QFile{dead}.open(QIODevice::WriteOnly));
    ASSERT_TRUE(QFile::link(path, folder.filePath(u"link"_s)));
    ASSERT_TRUE(replaceFile(folder.filePath(u"link"_s), "two"));
    EXPECT_FALSE(QFileInfo::exists(dead)) << "nor does it stay beside what is written only now and then";
}

TEST(WriteError, IsToldAsWhatItIs) {
    const std::pair<int, StoreErrorCode> cases[]{
        {ENOSPC, StoreErrorCode::diskFull},   {EDQUOT, StoreErrorCode::quotaReached},
        {EFBIG, StoreErrorCode::sizeLimit},   {EACCES, StoreErrorCode::notWritable},
        {EROFS, StoreErrorCode::notWritable}, {EIO, StoreErrorCode::writeFailed}};
    for (const auto& [error, code] : cases)
        EXPECT_EQ(writeError(error, u"x"_s).code, code) << error;
}

TEST_F(AtomicFileTest, DiskThatFillsUpLeavesTheFileAsItWas) {
    ASSERT_TRUE(replaceFile(path, "one"));
    for (const rlim_t limit : {rlim_t{0}, rlim_t{4096}, rlim_t{99'999}}) {
        const FullDisk full{limit};
        const auto result = replaceFile(path, QByteArray(100'000, 'x'));
        ASSERT_FALSE(result) << limit;
        EXPECT_EQ(result.error().code, StoreErrorCode::sizeLimit) << limit;
    }
    EXPECT_EQ(readFile(path).value(), "one");
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(AtomicFileTest, FilesAreWrittenReadAndLockedWhereStandardInputIsClosed) {
    const int kept = dup(STDIN_FILENO);
    close(STDIN_FILENO);
    const StoreResult written = replaceFile(path, "one");
    const auto content = readFile(path);
    auto lock = std::make_optional<FileLock>(path);
    const auto attempt = lock->tryTake();
    const bool isHeld = QFileInfo::exists(lock->path());
    lock.reset();
    const bool isLeft = QFileInfo::exists(path + u".lock"_s);
    const bool isFree = fcntl(STDIN_FILENO, F_GETFD) < 0;
    dup2(kept, STDIN_FILENO);
    close(kept);
    EXPECT_TRUE(written);
    EXPECT_EQ(content, "one");
    EXPECT_EQ(attempt, FileLock::Attempt::taken);
    EXPECT_TRUE(isHeld && !isLeft);
    EXPECT_TRUE(isFree) << "all were closed";
}

TEST_F(AtomicFileTest, FilesUpToTheLargestAreRead) {
    ASSERT_TRUE(replaceFile(path, QByteArray((1 << 20) + 1, 'x')));
    EXPECT_EQ(readFile(path).value().size(), (1 << 20) + 1);
    ASSERT_TRUE(QFile::resize(path, largestFile + 1)); // a hole, which takes no room
    EXPECT_EQ(readFile(path).error().code, StoreErrorCode::tooLarge);
    const auto endless = readFile(u"/proc/self/maps"_s); // does not know its size
    EXPECT_TRUE(endless && endless->contains("store_tests") && !endless->contains('\0'));
}

TEST_F(AtomicFileTest, FolderThatIsMissingIsReported) {
    const auto result = replaceFile(folder.filePath(u"no/such/ZEL.xml"_s), "one");
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().code, StoreErrorCode::notWritable);
    EXPECT_EQ(readFile(path).error().code, StoreErrorCode::notReadable);
    EXPECT_EQ(readFile(folder.path()).error().code, StoreErrorCode::notReadable);
}

} // namespace
} // namespace zel

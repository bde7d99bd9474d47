// A data file that the disk gives out no more, or that is too large to be read: it cannot be copied.
#include "store/AtomicFile.h"
#include "store/DataStore.h"
#include "support/BrokenFile.h"
#include "support/ManualClock.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <cerrno>
#include <fcntl.h>
#include <functional>
#include <optional>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

bool hasOneNameEach = false;                                  ///< the file system's files, as FAT's
std::function<int(const char* from, const char* to)> renamed; ///< in rename()'s place: an error's number or 0

} // namespace

/// In the library's place.
extern "C" int link(const char* from, const char* to) noexcept {
    if (!hasOneNameEach) return static_cast<int>(syscall(SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0));
    errno = EPERM;
    return -1;
}

/// In the library's place.
extern "C" int rename(const char* from, const char* to) noexcept {
    if (const int error = renamed ? renamed(from, to) : 0; error != 0) {
        errno = error;
        return -1;
    }
    return static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

namespace zel {
namespace {

using namespace Qt::StringLiterals;

struct BrokenDiskTest : testing::Test {
    QTemporaryDir home;
    ManualClock clock; // 2026-11-21
    DataStore store{{home.path(), home.path(), home.path()}, clock};
    QDir folder{store.backups().folder()};
    QString path = store.getZELXMLPath();
    QByteArray whole = "<ZEL><SystemSetting/><Patient><ID>A</ID></Patient></ZEL>";
    QString copy = u"ZEL-2026-11-20.xml"_s;
    std::optional<BrokenFile> broken;

    BrokenDiskTest() {
        QDir{}.mkpath(folder.path());
        EXPECT_TRUE(replaceFile(folder.filePath(copy), whole));
    }
    ~BrokenDiskTest() override {
        hasOneNameEach = false;
        renamed = {};
    }
    /// By a link or not, whose path stays.
    void breakFile(bool isLarge, bool isLinked) {
        QDir{}.remove(path);
        const QString file = isLinked ? home.filePath(u"elsewhere.xml"_s) : path;
        ASSERT_TRUE(replaceFile(file, "<ZEL>of value</ZEL>"));
        ASSERT_TRUE(!isLinked || QFile::link(file, path));
        if (isLarge)
            ASSERT_TRUE(QFile::resize(file, largestFile + 1)); // a hole, which takes no room
        else
            broken.emplace(file);
    }
    [[nodiscard]] QByteArray data() const { return readFile(path).value_or(QByteArray{}); }
    [[nodiscard]] QStringList copies() const { return folder.entryList(QDir::Files | QDir::Hidden); }
};

TEST_F(BrokenDiskTest, WhatCannotBeReadGivesItsPlaceAndIsKept) {
    using enum StoreErrorCode;
    for (int way = 0; way < 8; ++way) {
        SCOPED_TRACE(way);
        const bool isLarge = way & 1, isLinked = way & 2;
        hasOneNameEach = way & 4;
        breakFile(isLarge, isLinked);
        ASSERT_FALSE(HasFatalFailure());
        const FileStamp before = stampOf(path);
        EXPECT_EQ(store.load().error().code, isLarge ? tooLarge : readFailed);
        const auto kept = store.restoreBackup(copy);
        ASSERT_TRUE(kept) << kept.error().detail.toStdString();
        EXPECT_EQ(data(), whole);
        EXPECT_EQ(QFileInfo{path}.isSymLink(), isLinked);
        EXPECT_TRUE(store.lastLoad());
        EXPECT_EQ(backupOfName(*kept).value_or(Backup{}).kind, BackupKind::damaged);
        EXPECT_EQ(stampOf(folder.filePath(*kept)).number, before.number) << "the file itself";
        EXPECT_EQ(copies(), (QStringList{copy, *kept}));
        EXPECT_EQ(store.restoreBackup(*kept).error().code, isLarge ? tooLarge : readFailed);
        EXPECT_EQ(data(), whole);
        broken.reset();
        const QString keptFile = folder.filePath(*kept);
        EXPECT_TRUE(isLarge || readFile(keptFile).value_or(QByteArray{}) == "<ZEL>of value</ZEL>");
        folder.remove(*kept);
    }
}

TEST_F(BrokenDiskTest, WhatGoesWrongLeavesTheFileInItsPlace) {
    for (const bool isOneNamed : {false, true}) {
        SCOPED_TRACE(isOneNamed);
        hasOneNameEach = isOneNamed;
        breakFile(false, false);
        const FileStamp before = stampOf(path);
        int named = 0; // beside the copy, when the new file is to take the place
        renamed = [&](const char*, const char*) {
            named = static_cast<int>(copies().size()) - 1;
            return ENOSPC;
        };
        EXPECT_EQ(store.restoreBackup(copy).error().code, StoreErrorCode::diskFull);
        renamed = {};
        EXPECT_EQ(named, 1);
        EXPECT_EQ(stampOf(path).number, before.number);
        EXPECT_EQ(copies(), QStringList{copy});
        EXPECT_EQ(QFileInfo{path}.dir().entryList({u".*.new-*"_s}, QDir::Files | QDir::Hidden),
                  QStringList());
    }
    // Where another program has mended the file meanwhile, that stays.
    const FileStamp found = stampOf(path);
    broken.reset();
    ASSERT_TRUE(replaceFile(path, whole));
    const DataFile file{{home.path(), home.path(), home.path()}, clock};
    const auto late = file.replaceUnread("<ZEL/>", folder.filePath(u"late.xml"_s), found);
    EXPECT_EQ(late.error().code, StoreErrorCode::changedElsewhere);
    EXPECT_EQ(data(), whole);
    EXPECT_EQ(copies(), QStringList{copy});
    // Nothing is written over.
    EXPECT_EQ(file.replaceUnread("<ZEL/>", folder.filePath(copy), stampOf(path)).error().code,
              StoreErrorCode::alreadyExists);
    EXPECT_EQ(data(), whole);
    EXPECT_EQ(readFile(folder.filePath(copy)).value_or(QByteArray{}), whole);
}

TEST_F(BrokenDiskTest, AFileThatNeitherGoesNorComesBackIsNamed) {
    hasOneNameEach = true;
    breakFile(false, false);
    renamed = [this](const char*, const char*) { // the disk fails altogether
        return QDir{folder.path()}.removeRecursively() ? EROFS : EIO;
    };
    const auto restored = store.restoreBackup(copy);
    ASSERT_FALSE(restored);
    EXPECT_EQ(restored.error().code, StoreErrorCode::notCreated);
    EXPECT_TRUE(restored.error().detail.endsWith(u"-damaged.xml"_s));
}

} // namespace
} // namespace zel

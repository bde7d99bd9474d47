#include "store/AtomicFile.h"

#include "support/FullDisk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

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
}

TEST_F(AtomicFileTest, DiskThatFillsUpLeavesTheFileAsItWas) {
    ASSERT_TRUE(replaceFile(path, "one"));
    for (const rlim_t limit : {rlim_t{0}, rlim_t{4096}, rlim_t{99'999}}) {
        const FullDisk full{limit};
        const auto result = replaceFile(path, QByteArray(100'000, 'x'));
        ASSERT_FALSE(result) << limit;
        EXPECT_EQ(result.error().code, StoreErrorCode::writeFailed) << limit;
    }
    EXPECT_EQ(readFile(path).value(), "one");
    EXPECT_EQ(filesInFolder(), 1);
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

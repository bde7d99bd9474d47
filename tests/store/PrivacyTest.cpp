#include "store/Privacy.h"

#include "DataStoreTest.h"
#include "store/ExportFile.h"
#include "store/FileMode.h"
#include "support/Traces.h"

#include <array>
#include <sys/xattr.h>

namespace zel {
namespace {

mode_t modeOf(const QString& path) {
    struct stat status {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 0777U : 0;
}
bool setMode(const QString& path, mode_t mode) {
    return ::chmod(QFile::encodeName(path).constData(), mode) == 0;
}

struct NewFileModeTest : testing::Test {
    QTemporaryDir folder;
    QString report = folder.filePath(u"report.pdf"_s);

    /// Of a file that is written and one that is exported.
    std::pair<mode_t, mode_t> modes() {
        QFile::remove(report);
        const QString exported = folder.filePath(u"A.xml"_s);
        EXPECT_TRUE(replaceFile(report, "x"));
        EXPECT_TRUE(writeExport(exported, "x", Replace::yes, {}));
        return {modeOf(report), modeOf(exported)};
    }
    bool shareByList(std::array<char, 5> permissions) const {
        const char tags[] = {0x01, 0x04, 0x08, 0x10, 0x20};
        QByteArray list("\x02\0\0\0", 4);
        for (std::size_t i = 0; i < permissions.size(); ++i) {
            list += QByteArray{1, tags[i]} + QByteArray{1, '\0'} + permissions.at(i) + QByteArray{1, '\0'};
            list += tags[i] == 0x08 ? QByteArray("\x05\0\0\0", 4) : QByteArray(4, '\xFF');
        }
        return ::setxattr(QFile::encodeName(folder.path()).constData(), "system.posix_acl_default",
                          list.constData(), static_cast<std::size_t>(list.size()), 0)
               == 0;
    }
};

TEST_F(NewFileModeTest, OnlyAFolderThatSharesOnPurposeIsFollowed) {
    struct Case {
        mode_t folder, withheld, file;
    };
    for (const auto& [mode, withheld, file] :
         {Case{0755, 022, 0600}, Case{0777, 0, 0600}, Case{01777, 0, 0600}, Case{0770, 002, 0600},
          Case{02770, 0, 0660}, Case{02770, 022, 0640}, Case{02775, 002, 0660}, Case{02755, 0, 0640},
          Case{02770, 077, 0600}}) {
        const Withheld user(withheld);
        ASSERT_TRUE(setMode(folder.path(), mode));
        EXPECT_EQ(modes(), std::pair(file, file)) << std::oct << mode << ' ' << withheld;
    }
}

TEST_F(NewFileModeTest, AFoldersListIsFollowedAndAFileThatIsThereKeepsItsMode) {
    if (!shareByList({6, 0, 4, 4, 0})) GTEST_SKIP() << "this file system has no access lists";
    EXPECT_EQ(modes(), std::pair(mode_t{0640}, mode_t{0640})) << "one named group reads";
    ASSERT_TRUE(shareByList({6, 6, 6, 6, 4}));
    const Withheld user(077); // which a list has no regard for
    EXPECT_EQ(modes(), std::pair(mode_t{0664}, mode_t{0664}));
    ASSERT_TRUE(setMode(report, 0604));
    ASSERT_TRUE(replaceFile(report, "y"));
    EXPECT_EQ(modeOf(report), 0604U);
}

/// A data file in a home that others may enter, with a copy.
struct PrivacyTest : DataStoreTest {
    QString ours = QFileInfo{path}.path();
    QString copy = ours + u"/Backups/ZEL-2026-11-20.xml"_s;

    PrivacyTest() {
        setMode(home.path(), 0755);
        const Withheld nothing(0);
        EXPECT_TRUE(store.load());
    }
    void share() {
        write(copy, "<ZEL/>");
        for (QString at = ours + u"/Backups"_s; at != home.path(); at = QFileInfo{at}.path())
            ASSERT_TRUE(setMode(at, 0755));
        for (const QString& file : {path, copy})
            ASSERT_TRUE(setMode(file, 0644));
    }
};

TEST_F(PrivacyTest, WhatTheProgramMakesIsItsUsersAlone) {
    const Withheld nothing(0);
    dataFileOfA({});
    ASSERT_TRUE(store.load());
    ASSERT_TRUE(store.saveXMLPatient(patient(u"B"_s, u"Baker"_s)));
    ASSERT_EQ(store.backups().list().size(), 1U);
    EXPECT_EQ(openToOthers(home.path()), QStringList{});
    EXPECT_TRUE(readableByOthers(path).isEmpty());
}

TEST_F(PrivacyTest, AnOlderVersionsFileIsTakenFromOthersAsItIsMoved) {
    QFile::remove(path);
    write(program.filePath(u"ZEL.xml"_s), "<ZEL/>");
    ASSERT_TRUE(setMode(program.filePath(u"ZEL.xml"_s), 0644));
    ASSERT_TRUE(store.load());
    EXPECT_EQ(content().trimmed().left(4), "<ZEL");
    EXPECT_FALSE(QFile::exists(program.filePath(u"ZEL.xml"_s)));
    EXPECT_EQ(modeOf(path), 0600U);
}

TEST_F(PrivacyTest, WhatOthersCanReadIsTakenFromThemAndNothingElseIsChanged) {
    share();
    const QString stranger = ours + u"/notes.txt"_s;
    write(stranger, "not ours");
    ASSERT_TRUE(setMode(stranger, 0644));
    EXPECT_EQ(readableByOthers(path), (QStringList{path, copy}));
    const QByteArray before = content();
    const QDateTime changed = QFileInfo{path}.lastModified();
    EXPECT_TRUE(makePrivate(path).empty());
    EXPECT_TRUE(readableByOthers(path).isEmpty());
    EXPECT_EQ(openToOthers(ours), QStringList{u"644 /notes.txt"_s});
    EXPECT_EQ(modeOf(ours), 0700U);
    EXPECT_EQ(modeOf(home.path()), 0755U) << "not the program's";
    EXPECT_EQ(content(), before);
    EXPECT_EQ(QFileInfo{path}.lastModified(), changed);
}

TEST_F(PrivacyTest, AClosedFolderAboveAndAFolderSharedOnPurposeAreNoExposure) {
    share();
    ASSERT_TRUE(setMode(home.path(), 0700));
    EXPECT_TRUE(readableByOthers(path).isEmpty()) << "nobody comes so far";
    ASSERT_TRUE(setMode(home.path(), 0755));
    ASSERT_TRUE(setMode(ours, 02770));
    ASSERT_TRUE(setMode(path, 0660));
    ASSERT_TRUE(setMode(copy, 0600));
    EXPECT_TRUE(readableByOthers(path).isEmpty());
    ASSERT_TRUE(setMode(path, 0664));
    EXPECT_EQ(readableByOthers(path), QStringList{path}) << "the group only was meant";
    EXPECT_TRUE(makePrivate(path).empty());
    EXPECT_EQ(modeOf(path), 0660U);
    EXPECT_EQ(modeOf(ours), 0770U);
}

TEST_F(PrivacyTest, OfALinkThePointedFileIsMeantAndItsFolderIsNot) {
    share();
    const QString elsewhere = home.filePath(u"elsewhere"_s);
    QDir{}.mkdir(elsewhere);
    ASSERT_TRUE(setMode(elsewhere, 0755));
    const QString real = elsewhere + u"/data.xml"_s;
    ASSERT_TRUE(QFile::rename(path, real) && QFile::link(real, path));
    ASSERT_TRUE(setMode(ours, 0700)); // which is no protection of the other place
    EXPECT_EQ(readableByOthers(path), QStringList{QFileInfo{real}.canonicalFilePath()});
    EXPECT_TRUE(makePrivate(path).empty());
    EXPECT_EQ(modeOf(real), 0600U);
    EXPECT_EQ(modeOf(elsewhere), 0755U);
    EXPECT_TRUE(QFileInfo{path}.isSymLink());
}

} // namespace
} // namespace zel

#include "store/ViewMemory.h"

#include "store/AtomicFile.h"
#include "store/FileMode.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

struct ViewMemoryTest : testing::Test {
    QTemporaryDir home;
    QString dataFile = home.filePath(u"ZEL.xml"_s);
    QString file = viewMemoryFile(home.path(), dataFile);

    void write(const QByteArray& text) const {
        ASSERT_TRUE(makePrivateFolder(QFileInfo{file}.path()));
        QFile written{file};
        ASSERT_TRUE(written.open(QIODevice::WriteOnly));
        written.write(text);
    }
    QByteArray content() const { return readFile(file).value_or(QByteArray("none")); }
};

TEST_F(ViewMemoryTest, WhatIsKeptLastsAndIsItsUsersAlone) {
    ViewMemory first{file};
    EXPECT_TRUE(first.value(u"page"_s).isUndefined());
    ASSERT_TRUE(first.save());
    EXPECT_EQ(content(), "none") << "nothing to keep";
    first.set(u"page"_s, u"table"_s);
    first.set(u"period"_s, QJsonObject{{u"days"_s, u"last7"_s}});
    ASSERT_TRUE(first.save());
    struct stat status {};
    ASSERT_EQ(::stat(file.toUtf8().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
    ViewMemory second{file};
    EXPECT_EQ(second.value(u"page"_s), u"table"_s);
    second.set(u"period"_s, QJsonValue::Undefined);
    ASSERT_TRUE(second.save());
    EXPECT_TRUE(ViewMemory{file}.value(u"period"_s).isUndefined());
    ASSERT_TRUE(second.forget());
    EXPECT_TRUE(second.value(u"page"_s).isUndefined());
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_TRUE(second.forget()) << "nothing is left to be forgotten";
}

TEST_F(ViewMemoryTest, OnlyWhatWasChangedHereIsWritten) {
    write(R"({"page": "chart", "folder": "/a", "later": {"by": "a newer version"}})");
    ViewMemory one{file}, other{file};
    one.set(u"page"_s, u"table"_s);
    other.set(u"folder"_s, QJsonValue::Undefined);
    ASSERT_TRUE(one.save() && other.save());
    ViewMemory now{file};
    EXPECT_EQ(now.value(u"page"_s), u"table"_s);
    EXPECT_TRUE(now.value(u"folder"_s).isUndefined());
    EXPECT_EQ(now.value(u"later"_s)[u"by"_s], u"a newer version"_s);
    ASSERT_TRUE(QFile::remove(file));
    ASSERT_TRUE(other.save());
    EXPECT_FALSE(QFile::exists(file)) << "what is unchanged is not written again";
}

TEST_F(ViewMemoryTest, WhatCannotBeReadCountsAsNoneAndGivesWay) {
    for (const QByteArray& text : {QByteArray(), QByteArray("{"), QByteArray(R"(["page"])"),
                                   QByteArray(100'000, ' ') + R"({"page": "chart"})"}) {
        write(text);
        ViewMemory memory{file};
        EXPECT_TRUE(memory.value(u"page"_s).isUndefined()) << text.left(20).constData();
        ASSERT_TRUE(memory.save());
        EXPECT_EQ(content(), text) << "untouched until there is something to keep";
        memory.set(u"page"_s, u"table"_s);
        ASSERT_TRUE(memory.save());
        EXPECT_EQ(ViewMemory{file}.value(u"page"_s), u"table"_s);
    }
    ASSERT_TRUE(QFile::remove(file) && QDir().mkdir(file));
    ViewMemory blocked{file};
    blocked.set(u"page"_s, u"table"_s);
    EXPECT_FALSE(blocked.save());
    EXPECT_FALSE(blocked.forget());
}

TEST_F(ViewMemoryTest, EachDataFileHasOneWhateverPathLeadsToIt) {
    write({});
    QFile{dataFile}.open(QIODevice::WriteOnly);
    const QString link = home.filePath(u"link.xml"_s);
    ASSERT_TRUE(QFile::link(dataFile, link));
    EXPECT_EQ(viewMemoryFile(home.path(), dataFile), file) << "before and after it was made";
    EXPECT_EQ(viewMemoryFile(home.path(), link), file);
    EXPECT_EQ(viewMemoryFile(home.path(), home.path() + u"/./x/../ZEL.xml"_s), file);
    EXPECT_NE(viewMemoryFile(home.path(), home.filePath(u"other.xml"_s)), file);
    EXPECT_EQ(QFileInfo{file}.path(), home.path() + u"/.config/zel"_s);
}

TEST_F(ViewMemoryTest, APatientIsKnownAgainByTheIDThatIsNotTold) {
    const QJsonObject mask = maskedID(u"QXZ-771"_s);
    EXPECT_TRUE(isMaskOf(mask, u"QXZ-771"_s));
    for (const QString& other : {u"QXZ-77"_s, u"qxz-771"_s, u" QXZ-771"_s, QString()})
        EXPECT_FALSE(isMaskOf(mask, other)) << qPrintable(other);
    EXPECT_NE(maskedID(u"QXZ-771"_s), mask) << "two files tell nothing of one another";
    for (const QJsonValue& none : {QJsonValue(), QJsonValue(3), QJsonValue(QJsonObject())})
        EXPECT_FALSE(isMaskOf(none, QString()));
}

} // namespace
} // namespace zel

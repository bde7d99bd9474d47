#include "store/FileImport.h"

#include "DataStoreTest.h"
#include "support/FullDisk.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

using Refusal = ImportRefusalCode;

QByteArray fileOf(const QByteArray& ID, const QByteArray& records = {}) {
    return "<ZEL><Patient><ID>" + ID + "</ID></Patient>" + records + "</ZEL>";
}

QByteArray commentOf(const QByteArray& ID) {
    return "<Comment><ID>" + ID + "</ID><CommentID>10001</CommentID></Comment>";
}

struct FileImportTest : DataStoreTest {
    QTemporaryDir folder;
    FileImport import{store};

    FileImportTest() {
        dataFileOfA(commentOf("A") + "<MeasureRec><ID>A</ID></MeasureRec>");
        EXPECT_TRUE(store.loadXML());
    }
    QString file(const QString& name, const QByteArray& content) {
        QString made = folder.filePath(name);
        write(made, content);
        return made;
    }
    /// One whose patient's comments have a number that others have or none, one that is damaged, one whose
    /// patient is here, one of the same patient as the first, and another good one.
    QStringList mixed() {
        const QByteArray records = commentOf("N") + QByteArray{"<Comment><ID>N</ID></Comment>"}.repeated(2)
                                   + "<MeasureRec><ID>N</ID></MeasureRec>";
        return {file(u"n.xml"_s, fileOf("N", records)), file(u"damaged.xml"_s, "<ZEL>"),
                file(u"known.xml"_s, fileOf("A")), file(u"again.xml"_s, fileOf("N")),
                file(u"m.xml"_s, fileOf("M", commentOf("M")))};
    }
    std::vector<std::optional<Refusal>> importAll(const QStringList& files) {
        for (const QString& path : files)
            import.add(path);
        std::vector<std::optional<Refusal>> codes;
        for (const ImportedFile& each : import.finish()) {
            EXPECT_EQ(each.path, files.at(static_cast<qsizetype>(codes.size())));
            codes.push_back(each.result ? std::nullopt : std::optional{each.result.error().code});
        }
        return codes;
    }
};

const std::vector<std::optional<Refusal>> mixedResults{
    std::nullopt, Refusal::notReadable, Refusal::alreadyKnown, Refusal::alreadyKnown, std::nullopt};

TEST_F(FileImportTest, TakesTogetherWhatIsTakenOneByOneAndUndoesItSo) {
    const QByteArray before = content();
    const QStringList files = mixed();
    for (const QString& path : files)
        std::ignore = store.importXml(path);
    const QByteArray oneByOne = content();
    ASSERT_TRUE(store.undo() && store.undo());
    const QByteArray undone = content();

    int written = 0;
    QObject::connect(&store, &DataStore::historyChanged, &store, [&written] { ++written; });
    EXPECT_EQ(importAll(files), mixedResults);
    EXPECT_EQ(written, 1) << "one write";
    EXPECT_EQ(content(), oneByOne);
    EXPECT_NE(content(), undone);
    EXPECT_EQ(store.changes().undoable()->name.subject, u"m.xml"_s);
    ASSERT_TRUE(store.undo());
    EXPECT_EQ(order(), "SystemSetting: Patient:A Patient:N Comment:A10001 Comment:N10002 Comment:N Comment:N "
                       "MeasureRec:A MeasureRec:N");
    ASSERT_TRUE(store.undo());
    EXPECT_EQ(content(), undone);
    ASSERT_TRUE(store.redo() && store.redo());
    EXPECT_EQ(content(), oneByOne);
    EXPECT_TRUE(import.finish().empty());
}

TEST_F(FileImportTest, NothingIsWrittenBeforeTheEndNorWhenTheDiskIsFull) {
    const QByteArray before = content();
    import.add(file(u"n.xml"_s, fileOf("N")));
    EXPECT_EQ(content(), before);
    EXPECT_TRUE(import.finish().front().result);
    const QByteArray withN = content();
    EXPECT_NE(withN, before);
    // The last one's first patient is only in another of the files.
    const QStringList files{file(u"m.xml"_s, fileOf("M")), file(u"a.xml"_s, fileOf("A")),
                            file(u"again.xml"_s, fileOf("M")),
                            file(u"both.xml"_s, fileOf("M", "<Patient><ID>A</ID></Patient>"))};
    {
        const FullDisk disk{100};
        const std::vector<std::optional<Refusal>> codes{Refusal::notStored, Refusal::alreadyKnown,
                                                        Refusal::notStored, Refusal::alreadyKnown};
        EXPECT_EQ(importAll(files), codes);
        import.add(files.front());
        import.add(files.back());
        EXPECT_EQ(import.finish().back().result.error().ID, u"A"_s);
    }
    EXPECT_EQ(content(), withN);
    EXPECT_EQ(store.changes().undoable()->name.subject, u"n.xml"_s);
    write(path, "<ZEL>");
    EXPECT_EQ(importAll({files.front()}).front(), Refusal::notStored);
}

TEST_F(FileImportTest, MuchIsWrittenInParts) {
    const QByteArray before = content();
    FileImport small{store, 1000};
    small.add(file(u"n.xml"_s, fileOf("N", QByteArray(600, ' '))));
    EXPECT_EQ(content(), before);
    small.add(file(u"m.xml"_s, fileOf("M", QByteArray(600, ' '))));
    const QByteArray withBoth = content();
    EXPECT_NE(withBoth, before);
    small.add(file(u"l.xml"_s, fileOf("L")));
    EXPECT_EQ(content(), withBoth);
    const auto ended = small.finish();
    ASSERT_EQ(ended.size(), 3U);
    EXPECT_TRUE(ended[0].result && ended[1].result && ended[2].result);
    EXPECT_EQ(order(), "SystemSetting: Patient:A Patient:N Patient:M Patient:L Comment:A10001 MeasureRec:A");
}

/// Each of the large ones may be read, and the data file may hold one of them.
TEST_F(FileImportTest, OneThatTheDataFileCannotHoldHoldsUpNoOther) {
    const QByteArray many = QByteArray{"<Comment/>"}.repeated(200'000);
    const QStringList files{file(u"n.xml"_s, fileOf("N", many)), file(u"m.xml"_s, fileOf("M", many)),
                            file(u"l.xml"_s, fileOf("L"))};
    const std::vector<std::optional<Refusal>> codes{std::nullopt, Refusal::notStored, std::nullopt};
    EXPECT_EQ(importAll(files), codes);
    ASSERT_TRUE(store.loadXML());
    EXPECT_TRUE(store.validIDinXML(u"N"_s) && store.validIDinXML(u"L"_s) && !store.validIDinXML(u"M"_s));
}

} // namespace
} // namespace zel

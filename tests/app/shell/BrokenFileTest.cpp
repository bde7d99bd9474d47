// What is offered at start where the disk does not give out the data file.
#include "support/BrokenFile.h"

#include "AppTest.h"
#include "store/AtomicFile.h"

#include <QDialog>
#include <QDir>
#include <QFile>

#include <optional>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class BrokenFileTest : public AppTest {
protected:
    BrokenFileTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        EXPECT_TRUE(store.backups().create());
        startsPlugged = false;
    }
};

TEST_F(BrokenFileTest, aDataFileThatTheDiskGivesNoMoreGivesWayToItsNewestCopyIfTheUserSaysSo) {
    const QByteArray whole = dataFile();
    const QString title = qtTrId("dataFileUnreadable");
    for (const bool isLarge : {false, true}) {
        SCOPED_TRACE(isLarge);
        panel.questions.clear();
        replaceDataFile("<ZEL/>");
        std::optional<BrokenFile> broken;
        if (isLarge)
            ASSERT_TRUE(QFile::resize(store.getZELXMLPath(), largestFile + 1)); // a hole
        else
            broken.emplace(store.getZELXMLPath());
        loaded = store.loadXML();
        panel.answers[title] = false;
        start();
        EXPECT_EQ(panel.questions, QStringList(title));
        EXPECT_TRUE(panel.asked.startsWith(describe(loaded.error())));
        EXPECT_TRUE(panel.asked.contains(qtTrId("BackupPatients", 1)));
        EXPECT_FALSE(store.loadXML()) << "it is still there";
        panel.answers[title] = true;
        start();
        EXPECT_EQ(dataFile(), whole);
        EXPECT_TRUE(page("FamilyName").isVisible());
        EXPECT_TRUE(text("lblOutcome").contains(u"-damaged.xml"_s));
    }
}

TEST_F(BrokenFileTest, aDataFileThatIsOnlyOutOfReachIsToldAndLeftAlone) {
    const QString path = store.getZELXMLPath();
    ASSERT_TRUE(QFile::remove(path));
    for (const bool isFolder : {true, false}) {
        SCOPED_TRACE(isFolder);
        panel.messages.clear();
        ASSERT_TRUE(isFolder ? QDir().mkdir(path) : QFile::link(home.filePath(u"share/ZEL.xml"_s), path));
        loaded = store.load();
        ASSERT_FALSE(loaded);
        start();
        EXPECT_TRUE(panel.questions.isEmpty()) << qPrintable(panel.asked);
        EXPECT_EQ(panel.messages.size(), 1);
        ASSERT_TRUE(isFolder ? QDir().rmdir(path) : QFile::remove(path));
    }
}

TEST_F(BrokenFileTest, whereTheDataFileIsGoneTheCopyWithPatientsIsAWordAway) {
    const QByteArray whole = dataFile();
    ASSERT_TRUE(QFile::remove(store.getZELXMLPath()));
    loaded = store.load(); // makes an empty one
    ASSERT_TRUE(store.backups().create()) << "a newer copy, of nobody";
    start();
    EXPECT_TRUE(panel.questions.isEmpty()) << "nobody is held up";
    EXPECT_TRUE(text("lblFirstCopy").contains(qtTrId("BackupPatients", 1)));
    click("btnFirstBackups");
    auto& dialog = find<QDialog>("BackupDialog");
    EXPECT_TRUE(dialog.isVisible());
    dialog.close();
    ASSERT_TRUE(store.restoreBackup(store.backups().newest(1)->copy.name));
    EXPECT_EQ(dataFile(), whole);
    EXPECT_FALSE(page("firstSteps").isVisible());
}

TEST_F(BrokenFileTest, whereNoCopyHoldsAnybodyNoneIsSpokenOf) {
    ASSERT_TRUE(QDir(store.backups().folder()).removeRecursively());
    ASSERT_TRUE(store.deleteXMLPatient(u"P1"_s));
    ASSERT_TRUE(QDir(store.backups().folder()).removeRecursively());
    ASSERT_TRUE(store.backups().create());
    loaded = store.loadXML();
    start();
    EXPECT_TRUE(page("firstSteps").isVisible());
    EXPECT_FALSE(page("btnFirstBackups").isVisible());
}

} // namespace
} // namespace zel

#include "store/SecondFolder.h"

#include "AppTest.h"

#include <QAbstractItemView>
#include <QAction>
#include <QDir>
#include <QLineEdit>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// The window with a folder that stands for a stick.
class SecondFolderWindowTest : public AppTest {
protected:
    SecondFolderWindowTest() {
        startsPlugged = false;
        chooser.folder = stick.path();
        addPatient(u"P1"_s, u"Adams"_s);
        start();
        clock.advance(std::chrono::hours(24));
    }
    void openBackups() { window().findChild<QAction*>(u"showBackups"_s)->trigger(); }
    int copies() { return find<QAbstractItemView>("tblBackups").model()->rowCount(); }
    void change() {
        type("PatientNotes", u"note %1"_s.arg(++notes));
        click("btnSavePatient");
    }
    SecondFolder named() const { return secondFolder(store.getZELXMLPath())->value_or(SecondFolder{}); }

    QTemporaryDir stick;
    int notes = 0;
};

} // namespace

TEST_F(SecondFolderWindowTest, isNamedGetsTheDaysCopyAndGivesItBack) {
    openBackups();
    EXPECT_FALSE(find<QPushButton>("btnStopSecondFolder").isEnabled());
    const int before = copies();
    click("btnChooseSecondFolder");
    EXPECT_EQ(find<QLineEdit>("edtSecondFolder").text(), stick.path());
    click("btnCloseBackups");
    change();
    waitFor([this] { return named().list().size() == 1; });
    openBackups();
    waitFor([&] { return copies() == before + 2; });
    EXPECT_EQ(copies(), before + 2) << "the day's copy, at both places";
    auto& list = find<QAbstractItemView>("tblBackups");
    list.setCurrentIndex(list.model()->index(copies() - 1, 0));
    EXPECT_TRUE(text("lblBackup").startsWith(qtTrId("backupFar").arg(named().list().front().name)));
    click("btnRestoreBackup");
    EXPECT_EQ(store.getPatientByID(u"P1"_s)->PatientNotes, QString());
    openBackups();
    click("btnStopSecondFolder");
    EXPECT_EQ(find<QLineEdit>("edtSecondFolder").text(), QString());
    EXPECT_EQ(QDir(stick.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1)
        << "what is there stays";
    EXPECT_TRUE(panel.messages.empty()) << qPrintable(panel.messages.join(u'|'));
}

TEST_F(SecondFolderWindowTest, thatIsAwayIsToldOnceADayAndHoldsUpNothing) {
    ASSERT_TRUE(nameSecondFolder(store.getZELXMLPath(), stick.path()));
    const QString copies = named().copies();
    QDir().rename(copies, stick.filePath(u"away"_s));
    panel.messages.clear();
    change();
    waitFor([this] { return !panel.messages.empty(); });
    EXPECT_TRUE(panel.messages.first().contains(stick.path()));
    EXPECT_EQ(store.getPatientByID(u"P1"_s)->PatientNotes, u"note 1"_s);
    QDir().rename(stick.filePath(u"away"_s), copies);
    change();
    waitFor([this] { return named().list().size() == 1; });
    EXPECT_EQ(panel.messages.size(), 1);
}

TEST_F(SecondFolderWindowTest, helpsADamagedFileWhereNoOtherCopyCanBeRead) {
    ASSERT_TRUE(nameSecondFolder(store.getZELXMLPath(), stick.path()));
    change();
    waitFor([this] { return named().list().size() == 1; });
    QDir(store.backups().folder()).removeRecursively();
    replaceDataFile("<ZEL>");
    loaded = store.load();
    ASSERT_FALSE(loaded);
    start();
    EXPECT_TRUE(store.getPatientByID(u"P1"_s)) << qPrintable(panel.messages.join(u'|'));
}

} // namespace zel

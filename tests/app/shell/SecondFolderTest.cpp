#include "store/SecondFolder.h"

#include "AppTest.h"
#include "app/settings/BackupCourier.h"

#include <QAbstractItemView>
#include <QAction>
#include <QDir>
#include <QLineEdit>

#include <atomic>
#include <future>

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
    const QTemporaryDir other;
    ASSERT_TRUE(nameSecondFolder(store.getZELXMLPath(), other.path()));
    QDir(named().copies()).removeRecursively();
    change();
    waitFor([this] { return panel.messages.size() == 2; });
    EXPECT_TRUE(panel.messages.last().contains(other.path())) << "another folder's first failure";
}

TEST_F(SecondFolderWindowTest, thatDoesNotAnswerIsToldAndHoldsUpNoOther) {
    ASSERT_TRUE(nameSecondFolder(store.getZELXMLPath(), stick.path()));
    change();
    waitFor([this] { return named().list().size() == 1; });
    std::promise<void> answer;
    const auto asked = std::make_shared<std::atomic<int>>(0); // the last copy may outlive the courier
    BackupCourier courier(store, clock, nullptr, std::chrono::milliseconds(1),
                          [asked, hangs = named(), answered = answer.get_future().share()](
                              const QString& from, const SecondFolder& to, DayNumber day) {
                              if (to.folder == hangs.folder && ++*asked == 1) answered.wait();
                              return bringCopy(from, to, day);
                          });
    QStringList failures;
    QObject::connect(&courier, &BackupCourier::failed, [&](const QString& why) { failures += why; });
    courier.bring();
    waitFor([&] { return !failures.empty() && *asked > 0; });
    EXPECT_TRUE(failures.first().contains(stick.path()));
    courier.bring();
    EXPECT_EQ(*asked, 1) << "not before it has answered";
    const QTemporaryDir other;
    ASSERT_TRUE(nameSecondFolder(store.getZELXMLPath(), other.path()));
    courier.bring();
    waitFor([this] { return named().list().size() == 1; });
    EXPECT_EQ(named().list().size(), 1U);
    answer.set_value();
}

TEST_F(SecondFolderWindowTest, aLateListOfAnotherFolderIsNotShown) {
    ASSERT_TRUE(nameSecondFolder(store.getZELXMLPath(), stick.path()));
    change();
    waitFor([this] { return named().list().size() == 1; });
    const SecondFolder before = named();
    openBackups();
    click("btnStopSecondFolder");
    const int near = static_cast<int>(store.backups().list().size());
    emit app->findChild<BackupCourier*>()->listed(before, before.list());
    EXPECT_EQ(copies(), near);
}

TEST_F(SecondFolderWindowTest, theCopyThatWasAskedAboutIsTheOneGoneBackTo) {
    change();
    openBackups();
    click("btnCreateBackup");
    auto& list = find<QAbstractItemView>("tblBackups");
    ASSERT_GT(copies(), 1);
    const QString chosen = list.currentIndex().data(Qt::UserRole).toString();
    panel.whenAsked = [&] {
        const int other = list.currentIndex().row() == 0 ? 1 : 0;
        list.setCurrentIndex(list.model()->index(other, 0));
    };
    click("btnRestoreBackup");
    panel.whenAsked = [] {};
    EXPECT_TRUE(text("lblOutcome").contains(chosen)) << qPrintable(text("lblOutcome"));
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

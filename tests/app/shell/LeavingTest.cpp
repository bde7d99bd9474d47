#include "AppTest.h"
#include "app/shell/TerminationSignals.h"

#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <csignal>
#include <functional>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// Leaving the roster, and the program, while something is typed there.
class LeavingTest : public AppTest {
protected:
    LeavingTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        startsPlugged = false;
    }
    QString value(const char* field) { return find<QLineEdit>(field).text(); }
};

} // namespace

TEST_F(LeavingTest, aRefusedSaveKeepsThePatientInView) {
    start();
    type("FamilyName", u"-"_s);
    const QSignalSpy closed(app.get(), &AppController::closed);
    const auto stays = [this] {
        EXPECT_EQ(panel.messages.size(), 1);
        panel.messages.clear();
        EXPECT_EQ(store.getCurrentID(), u"P1"_s);
        EXPECT_TRUE(page("PatientViewController").isVisible());
        EXPECT_TRUE(page("sideColumn").isVisible());
        EXPECT_EQ(value("FamilyName"), u"-"_s);
    };
    click("tableBtn");
    stays();
    app->mainWndow().close();
    stays();
    EXPECT_TRUE(closed.empty());
    panel.answers[qtTrId("SavePatient")] = false;
    app->mainWndow().close();
    EXPECT_EQ(closed.size(), 1);
}

TEST_F(LeavingTest, aTabIsNotChangedOverAnEntryThatDoesNotValidate) {
    start();
    type("Height", u"x"_s);
    click("graphBtn");
    EXPECT_TRUE(page("PatientViewController").isVisible());
    EXPECT_TRUE(panel.questions.empty());
    EXPECT_FALSE(page("Height").accessibleDescription().isEmpty());
    EXPECT_TRUE(page("HeightProblem").isVisible());
    type("Height", u""_s);
    click("graphBtn");
    EXPECT_TRUE(page("GraphViewController").isVisible());
}

TEST_F(LeavingTest, aTabGivesUpWhatIsNotWantedForAPatientWhoIsGone) {
    addPatient(u"P2"_s, u"Baker"_s);
    start();
    type("PatientNotes", u"more"_s);
    DataStore other({home.path(), home.path(), u":/templates"_s}, clock);
    ASSERT_TRUE(other.load());
    ASSERT_TRUE(other.deleteXMLPatient(u"P1"_s));
    ASSERT_TRUE(store.loadXML());
    panel.answers[qtTrId("SavePatient")] = false;
    click("graphBtn");
    EXPECT_EQ(store.getCurrentID(), u"P2"_s);
    EXPECT_EQ(value("FamilyName"), u"Baker"_s);
}

TEST_F(LeavingTest, theOtherTabsNeedAPatient) {
    start();
    click("btnDeletePatient");
    EXPECT_FALSE(page("graphBtn").isEnabled());
    press(Qt::Key_N, Qt::ControlModifier);
    type("ID", u"P4"_s);
    type("FamilyName", u"Dunn"_s);
    type("GivenNames", u"Lou"_s);
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(store.getCurrentID(), u"P4"_s);
    EXPECT_EQ(text("lblOutcome"), qtTrId("patientSaved").arg(u"Lou Dunn"_s));
    EXPECT_TRUE(page("graphBtn").isEnabled());
}

TEST_F(LeavingTest, quittingAsksForTheNewPatientThatWasLeftUnsaved) {
    start();
    click("btnNewPatient");
    type("FamilyName", u"Clark"_s);
    panel.answers[qtTrId("SavePatient")] = false;
    page("tblPatients").setFocus();
    press(Qt::Key_Down);
    QCoreApplication::processEvents(); // what is asked comes after the key
    ASSERT_EQ(store.getCurrentID(), u"P1"_s) << "the new one is kept, unsaved";
    panel.answers[qtTrId("SavePatient")] = true;
    const QSignalSpy closed(app.get(), &AppController::closed);
    press(Qt::Key_2, Qt::ControlModifier);
    app->closeApplicaiton();
    EXPECT_EQ(closed.count(), 0) << "an ID is missing";
    EXPECT_TRUE(page("FamilyName").isVisible());
    EXPECT_EQ(value("FamilyName"), u"Clark"_s);
    panel.answers[qtTrId("SavePatient")] = false;
    panel.questions.clear();
    app->closeApplicaiton();
    EXPECT_EQ(closed.count(), 1);
    EXPECT_EQ(panel.questions.size(), 1) << "asked once";
}

TEST_F(LeavingTest, whatIsTypedIsAskedAboutBeforeItIsPrintedOrExported) {
    const QStringList asked(qtTrId("SavePatient"));
    const auto print = [this] {
        panel.questions.clear();
        app->showPrint();
        auto* window = app->mainWndow().findChild<QDialog*>(u"PrintController"_s);
        const bool isOpen = window && window->isVisible();
        if (isOpen) window->reject();
        return isOpen;
    };
    const QTemporaryDir outside;
    chooser.folder = outside.path();
    const auto exportBy = [&](const char* button) {
        panel.questions.clear();
        click("settingBtn");
        click(button);
        click("cancelButton");
        bool isWritten = false;
        for (const QString& name : QDir(chooser.folder).entryList(QDir::Files))
            isWritten = QFile::remove(outside.filePath(name)) || isWritten;
        return isWritten;
    };
    start();
    QString name = u"Adams"_s;
    for (const auto& handOver : std::initializer_list<std::function<bool()>>{
             print, [&] { return exportBy("exportButton"); }, [&] { return exportBy("csvButton"); }}) {
        EXPECT_TRUE(handOver());
        EXPECT_TRUE(panel.questions.empty());
        type("FamilyName", name + u"son"_s);
        panel.cancelsSaving = true;
        EXPECT_FALSE(handOver());
        panel.cancelsSaving = false;
        panel.answers[asked[0]] = false;
        EXPECT_TRUE(handOver());
        EXPECT_EQ(panel.questions, asked);
        EXPECT_EQ(value("FamilyName"), name + u"son"_s) << "it is left unsaved, not given up";
        EXPECT_EQ(store.getPatientByID(u"P1"_s)->FamilyName, name);
        panel.answers[asked[0]] = true;
        EXPECT_TRUE(handOver());
        EXPECT_EQ(store.getPatientByID(u"P1"_s)->FamilyName, name += u"son"_s);
        type("FamilyName", u"-"_s);
        EXPECT_FALSE(handOver()) << "it cannot be saved";
        type("FamilyName", name);
    }
}

TEST_F(LeavingTest, cancelStaysWithWhatIsTyped) {
    addPatient(u"P2"_s, u"Baker"_s);
    start();
    type("FamilyName", u"Clark"_s);
    panel.cancelsSaving = true;
    const QSignalSpy closed(app.get(), &AppController::closed);
    for (const auto& leave : std::initializer_list<std::function<void()>>{
             [this] { app->mainWndow().close(); }, [this] { click("graphBtn"); },
             [this] { click("btnNewPatient"); },
             [this] {
                 page("tblPatients").setFocus();
                 press(Qt::Key_Down);
                 QCoreApplication::processEvents(); // what is asked comes after the key
             }}) {
        panel.questions.clear();
        leave();
        EXPECT_EQ(panel.questions, QStringList(qtTrId("SavePatient")));
        EXPECT_EQ(store.getCurrentID(), u"P1"_s);
        EXPECT_TRUE(page("PatientViewController").isVisible());
        EXPECT_EQ(value("FamilyName"), u"Clark"_s);
    }
    EXPECT_TRUE(closed.empty());
    EXPECT_EQ(store.getPatientByID(u"P1"_s)->FamilyName, u"Adams"_s);
}

TEST_F(LeavingTest, beingEndedFromOutsideSavesWhatWasTyped) {
    TerminationSignals termination;
    termination.watch();
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        start();
        QObject::connect(&termination, &TerminationSignals::terminated, app.get(), &AppController::terminate);
        const QSignalSpy closed(app.get(), &AppController::closed);
        const QString notes = u"before signal %1"_s.arg(signal);
        type("PatientNotes", notes);
        ASSERT_EQ(std::raise(signal), 0);
        QCoreApplication::processEvents();
        EXPECT_EQ(closed.count(), 1) << signal;
        ASSERT_TRUE(store.loadXML());
        EXPECT_EQ(store.getPatientByID(u"P1"_s)->PatientNotes, notes);
    }
}

TEST_F(LeavingTest, theEndSavesEveryPatientThatWasTyped) {
    start();
    type("PatientNotes", u"mine"_s);
    click("btnNewPatient");
    type("FamilyName", u"Clark"_s);
    type("GivenNames", u"Lou"_s);
    type("ID", u"P2"_s);
    panel.questions.clear();
    app->terminate();
    EXPECT_TRUE(panel.questions.empty());
    ASSERT_TRUE(store.loadXML());
    EXPECT_EQ(store.getPatientByID(u"P1"_s)->PatientNotes, u"mine"_s);
    ASSERT_TRUE(store.validIDinXML(u"P2"_s));
    EXPECT_EQ(store.getPatientByID(u"P2"_s)->GivenNames, u"Lou"_s);
    panel.questions.clear();
    start();
    EXPECT_TRUE(panel.questions.empty()) << "nothing is left to be offered";
}

TEST_F(LeavingTest, beingEndedFromOutsideBringsNobodyBackWhomAnotherProgramRemoved) {
    start();
    type("PatientNotes", u"mine"_s);
    DataStore other({home.path(), home.path(), u":/templates"_s}, clock);
    ASSERT_TRUE(other.load());
    ASSERT_TRUE(other.deleteXMLPatient(u"P1"_s));
    app->terminate();
    ASSERT_TRUE(store.loadXML());
    EXPECT_FALSE(store.validIDinXML(u"P1"_s));
    panel.questions.clear();
    start();
    EXPECT_EQ(panel.questions, QStringList(qtTrId("unsavedTitle"))) << "offered as a new patient";
    EXPECT_EQ(value("ID"), u"P1"_s);
    EXPECT_EQ(find<QPlainTextEdit>("PatientNotes").toPlainText(), u"mine"_s);
}

TEST_F(LeavingTest, whatCannotBeSavedAtTheEndIsOfferedAtTheNextStart) {
    const QString title = qtTrId("unsavedTitle");
    start();
    click("btnNewPatient");
    type("FamilyName", u"Clark"_s);
    panel.answers[qtTrId("SavePatient")] = false;
    page("tblPatients").setFocus();
    press(Qt::Key_Down);
    QCoreApplication::processEvents();
    type("Height", u"x"_s);
    app->terminate();
    app->terminate(); // a second signal

    panel.answers[title] = false;
    panel.questions.clear();
    start();
    EXPECT_EQ(panel.questions, (QStringList{title, title, title, title})) << "take it up, else delete it";
    EXPECT_EQ(value("Height"), QString()) << "neither: it waits";
    panel.answers[title] = true; // to the first, and then the session ends while the second one is asked
    panel.questions.clear();
    panel.whenAsked = [this, title] {
        if (panel.questions.size() < 2) return;
        app->terminate();
        panel.answers[title] = false; // as a box that is closed answers
    };
    launch();
    panel.whenAsked = [] {};
    panel.answers[title] = true;
    panel.questions.clear();
    start();
    EXPECT_EQ(panel.questions, (QStringList{title, title}));
    EXPECT_EQ(value("Height"), u"x"_s);
    EXPECT_EQ(value("FamilyName"), u"Adams"_s);
    type("Height", QString());
    panel.answers[qtTrId("SavePatient")] = true;
    page("tblPatients").setFocus();
    press(Qt::Key_Up);
    QCoreApplication::processEvents();
    EXPECT_EQ(value("FamilyName"), u"Clark"_s);
    panel.questions.clear();
    start();
    EXPECT_FALSE(panel.questions.contains(title)) << "once taken up it is not offered again";
}

TEST_F(LeavingTest, aDownloadFirstSettlesWhatWasTyped) {
    startsPlugged = true;
    startConnected();
    panel.questions.clear();
    type("PatientNotes", u"mine"_s);
    download();
    EXPECT_EQ(panel.questions, QStringList(qtTrId("SavePatient")));
    EXPECT_EQ(store.getPatientByID(u"P1"_s)->PatientNotes, u"mine"_s);
    EXPECT_EQ(store.getReadingForCurID().size(), 12U);
}

} // namespace zel

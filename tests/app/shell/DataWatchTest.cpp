#include "AppTest.h"

#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>

#include <atomic>
#include <future>
#include <memory>

namespace zel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The window and another program over the same data file.
class DataWatchTest : public AppTest {
protected:
    DataWatchTest() {
        startsPlugged = false;
        for (int i = 0; i < 60; ++i)
            addPatient(u"P%1"_s.arg(i, 2, 10, QChar(u'0')), u"Family%1"_s.arg(i, 2, 10, QChar(u'0')));
    }
    void watch(std::chrono::milliseconds interval) {
        launch({.polling = 1ms, .splash = 1ms, .watching = interval});
        waitFor([this] { return !find<QWidget>("splash").isVisible(); });
    }
    void elsewhere(const std::function<void(DataStore&)>& change) {
        DataStore other({home.path(), home.path(), u":/templates"_s}, clock);
        ASSERT_TRUE(other.load());
        change(other);
    }
    void changeElsewhere(const QString& ID, const QString& address) {
        elsewhere([&](DataStore& other) {
            PatientModel patient = *other.getPatientByID(ID);
            patient.Address = address;
            ASSERT_TRUE(other.saveXMLPatient(patient));
        });
    }
    [[nodiscard]] QString address() { return find<QPlainTextEdit>("Address").toPlainText(); }
};

/// The last look may outlive the watch, and the test.
std::shared_ptr<std::atomic<int>> lookCounter() { return std::make_shared<std::atomic<int>>(0); }

} // namespace

TEST_F(DataWatchTest, WhatAnotherProgramChangesIsShownAndWhatIsTypedStays) {
    watch(1ms);
    auto& list = find<QTableView>("tblPatients");
    list.selectRow(20);
    waitFor([this] { return store.getCurrentID() == u"P20"_s; });
    auto& notes = find<QPlainTextEdit>("PatientNotes");
    type("PatientNotes", u"first second"_s);
    QTextCursor cursor = notes.textCursor();
    cursor.setPosition(5);
    notes.setTextCursor(cursor);
    find<QLineEdit>("FamilyName").setCursorPosition(3);
    list.verticalScrollBar()->setValue(list.verticalScrollBar()->maximum()); // the patient is out of view
    const int scrolled = list.verticalScrollBar()->value();
    ASSERT_GT(scrolled, 20);

    QSignalSpy reloads(&store, &DataStore::reloaded);
    changeElsewhere(u"P20"_s, u"Road 1"_s);
    waitFor([this] { return address() == u"Road 1"_s; });
    EXPECT_EQ(text("lblOutcome"), qtTrId("dataChangedElsewhere"));
    EXPECT_EQ(notes.toPlainText(), u"first second"_s);
    EXPECT_EQ(notes.textCursor().position(), 5) << "the caret stays";
    EXPECT_EQ(find<QLineEdit>("FamilyName").cursorPosition(), 3);
    EXPECT_TRUE(notes.hasFocus());
    EXPECT_EQ(store.getCurrentID(), u"P20"_s);
    EXPECT_EQ(list.currentIndex().row(), 20);
    EXPECT_EQ(list.verticalScrollBar()->value(), scrolled) << "the list stays";
    QTest::qWait(20);
    EXPECT_EQ(reloads.size(), 1) << "a load for a change, and no more";

    reloads.clear();
    press(Qt::Key_S, Qt::ControlModifier);
    waitFor([&] { return !reloads.empty(); });
    QTest::qWait(20);
    EXPECT_EQ(reloads.size(), 1) << "its own save is no change by others";
    EXPECT_EQ(text("lblOutcome"), qtTrId("patientSaved").arg(u"Kim Family20"_s));
}

TEST_F(DataWatchTest, TheUndoKeyMeansWhatIsTypedAlsoAfterAReload) {
    watch(1ms);
    QByteArray before;
    for (const char* field : {"PatientNotes", "FamilyName"}) {
        SCOPED_TRACE(field);
        type(field, u"typed"_s);
        changeElsewhere(u"P00"_s, QLatin1String(field));
        waitFor([&] { return address() == QLatin1String(field); });
        before = dataFile();
        for (int times = 0; times < 20; ++times)
            press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(dataFile(), before);
    }
    EXPECT_EQ(find<QPlainTextEdit>("PatientNotes").toPlainText(), QString());
    EXPECT_EQ(find<QLineEdit>("FamilyName").text(), u"Family00"_s);
    type("PatientNotes", u"typed"_s);
    find<QWidget>("GivenNames").setFocus(); // nothing is typed there, but something is not saved
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(dataFile(), before);
}

TEST_F(DataWatchTest, WhoeverIsRemovedElsewhereIsNamedAndNobodyElseIsTypedInto) {
    watch(1ms);
    find<QTableView>("tblPatients").selectRow(20);
    find<QWidget>("GivenNames").setFocus();
    elsewhere([](DataStore& other) { ASSERT_TRUE(other.deleteXMLPatient(u"P20"_s)); });
    waitFor([this] { return store.getCurrentID() == u"P00"_s; });
    EXPECT_EQ(find<QLineEdit>("FamilyName").text(), u"Family00"_s);
    EXPECT_TRUE(find<QWidget>("tblPatients").hasFocus()) << "not in the editor of somebody else";
    const QString told = qtTrId("Warning") + u": "_s;
    EXPECT_EQ(panel.messages, QStringList(told + qtTrId("patientReplaced").arg(u"Kim Family20"_s)));
    type("PatientNotes", u"typed"_s);
    elsewhere([](DataStore& other) { ASSERT_TRUE(other.deleteXMLPatient(u"P00"_s)); });
    waitFor([this] { return panel.messages.size() == 2; });
    EXPECT_EQ(panel.messages.last(), told + qtTrId("patientGone").arg(u"Kim Family00"_s));
    EXPECT_TRUE(find<QWidget>("PatientNotes").hasFocus()) << "it is still the same patient";
    QSignalSpy reloads(&store, &DataStore::reloaded);
    changeElsewhere(u"P30"_s, u"Road 1"_s);
    waitFor([&] { return !reloads.empty(); });
    EXPECT_EQ(panel.messages.size(), 2) << "it is told already";
}

TEST_F(DataWatchTest, WhatCannotBeReadNowIsSaidAndNothingIsTakenAway) {
    watch(1ms);
    const QByteArray whole = dataFile();
    replaceDataFile(whole.first(whole.size() / 2));
    waitFor([this] { return text("lblOutcome") == qtTrId("dataUnreadNow"); });
    EXPECT_EQ(find<QTableView>("tblPatients").model()->rowCount(), 60);
    replaceDataFile(whole);
    waitFor([this] { return text("lblOutcome") == qtTrId("dataChangedElsewhere"); });
    const QString path = store.getZELXMLPath();
    ASSERT_TRUE(QFile::rename(path, path + u'~'));
    waitFor([this] { return text("lblOutcome") == qtTrId("dataUnreadNow"); });
    EXPECT_EQ(find<QTableView>("tblPatients").model()->rowCount(), 60);
    ASSERT_TRUE(QFile::rename(path + u'~', path));
    waitFor([this] { return text("lblOutcome") != qtTrId("dataUnreadNow"); });
}

TEST_F(DataWatchTest, TurningToTheWindowLooksAtOnceButNotUnderADialog) {
    watch(1h);
    const auto looks = lookCounter();
    const DataWatch watched(store, app->mainWndow(), {.interval = 1h}, [looks](const QString& path) {
        ++*looks;
        return stampOf(path);
    });
    // None starts before what the one before it saw has been heard of.
    const auto turnTo = [&] {
        for (int times = 0; times < 3; ++times) {
            waitFor([&, before = looks->load()] {
                QEvent activation(QEvent::WindowActivate);
                QCoreApplication::sendEvent(&app->mainWndow(), &activation);
                return *looks > before;
            });
        }
    };
    app->showSetting();
    changeElsewhere(u"P00"_s, u"Road 2"_s);
    turnTo();
    EXPECT_EQ(address(), QString()) << "the dialog has begun with what is shown";
    find<QDialog>("SettingController").reject();
    turnTo();
    EXPECT_EQ(address(), u"Road 2"_s);
    type("PatientNotes", u"x"_s);
    changeElsewhere(u"P00"_s, u"Road 3"_s);
    turnTo();
    EXPECT_EQ(address(), u"Road 2"_s) << "not while keys are pressed";
}

TEST_F(DataWatchTest, AShareThatDoesNotAnswerHoldsUpNothingAndIsToldOnce) {
    watch(1h);
    std::promise<void> answer;
    const auto looks = lookCounter();
    DataWatch watched(store, app->mainWndow(), {.interval = 1ms, .patience = 1ms},
                      [looks, answered = answer.get_future().share()](const QString& path) {
                          if (++*looks == 1) answered.wait();
                          return stampOf(path);
                      });
    QSignalSpy unreadable(&watched, &DataWatch::unreadable);
    QSignalSpy readable(&watched, &DataWatch::readable);
    waitFor([&] { return !unreadable.empty(); });
    QTest::qWait(20);
    EXPECT_EQ(*looks, 1) << "not before it has answered";
    EXPECT_EQ(unreadable.size(), 1);
    answer.set_value();
    waitFor([&] { return !readable.empty() && *looks > 1; });
}

} // namespace zel

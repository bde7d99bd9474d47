#include "AppTest.h"
#include "app/device/ProgressWindowController.h"

#include <QSignalSpy>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class DownloadFlowTest : public AppTest {
protected:
    DownloadFlowTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        addPatient(u"P2"_s, u"Baker"_s);
        store.getSetting().eraseRecAfterReading = 0;
        EXPECT_TRUE(store.saveSetting());
    }
    ProgressWindowController& progress() {
        return find<ProgressWindowController>("ProgressWindowController");
    }
    /// A download whose answer never comes, caught while it waits.
    void startEndlessDownload() {
        plan.faults.insert(plan.faults.begin(),
                           {.kind = SimulatedFault::Kind::noAnswer, .command = Command::records, .times = 1});
        startConnected();
        panel.messages.clear();
        clock.stands = true;
        click("btnDataTransfer");
        waitFor([this] { return progress().isActiveWindow(); });
    }
    /// Goes back to the roster and downloads once more.
    void downloadAgain() {
        click("patientBtn");
        waitFor([this] { return find<QPushButton>("btnDataTransfer").isEnabled(); });
        download();
    }
    /// That may be pressed for the selected patient: the download's, the ID's.
    std::pair<bool, bool> enabledButtons() {
        return {find<QPushButton>("btnDataTransfer").isEnabled(), find<QPushButton>("btnSendID").isEnabled()};
    }
};

} // namespace

TEST_F(DownloadFlowTest, withTheMouseFromTheMonitorToTheFileAndTheTable) {
    startConnected();
    download();
    EXPECT_EQ(store.getReadingForCurID().size(), 12U);
    EXPECT_EQ(store.getTrasferLogForCurID().size(), 1U);
    EXPECT_EQ(app->selectedTab(), 1);
    EXPECT_TRUE(page("GraphViewController").isVisible());
    EXPECT_FALSE(progress().isVisible());
    EXPECT_EQ(text("lblOutcome"), u"12 readings downloaded, 12 new"_s);
    EXPECT_EQ(readingsInMonitor(), 12) << "kept, as the settings say";
    const Period all = period.getTimePeriod();
    ASSERT_TRUE(period.pickTimePeriod(all.begin, all.begin + std::chrono::hours(48)));
    downloadAgain();
    EXPECT_EQ(period.getTimePeriod(), all) << "picked days give way to the readings that came";
    click("patientBtn");
    press(Qt::Key_Down);
    EXPECT_TRUE(text("lblOutcome").isEmpty()) << "it was another patient's";
}

TEST_F(DownloadFlowTest, withTheKeyboardAlone) {
    plan.ID = "P2";
    startConnected();
    press(Qt::Key_Down);
    ASSERT_EQ(store.getCurrentID(), u"P2"_s);
    press(Qt::Key_D, Qt::ControlModifier);
    waitFor([this] { return !text("lblOutcome").isEmpty(); });
    EXPECT_EQ(store.getReadingForCurID().size(), 12U);
    waitFor([this] { return app->mainWndow().isActiveWindow(); });
    press(Qt::Key_3, Qt::ControlModifier);
    EXPECT_TRUE(page("TableViewController").isVisible());
}

TEST_F(DownloadFlowTest, saysHowItEndedAndCanBeTriedAgain) {
    plan.faults = {{.kind = SimulatedFault::Kind::badCheckField, .command = Command::records, .times = 3}};
    startEndlessDownload();
    press(Qt::Key_Escape);
    clock.stands = false;
    waitFor([this] { return !progress().isVisible(); });
    EXPECT_EQ(text("lblOutcome"), qtTrId("downloadCancelled"));
    EXPECT_TRUE(page("PatientViewController").isVisible()) << "to be tried again there";
    EXPECT_TRUE(panel.messages.empty()) << "nobody is told of what he did himself";
    downloadAgain();
    EXPECT_EQ(panel.messages,
              QStringList(qtTrId("Warning") + u": "_s
                          + qtTrId("downloadFailed").arg(describe(MonitorResult::badCheckField))));
    EXPECT_TRUE(store.getReadingForCurID().empty());
    EXPECT_TRUE(page("PatientViewController").isVisible());
    store.getSetting().eraseRecAfterReading = 1;
    ASSERT_TRUE(store.saveSetting());
    port->keepsNothing = true;
    downloadAgain();
    EXPECT_EQ(store.getReadingForCurID().size(), 12U);
    EXPECT_TRUE(page("GraphViewController").isVisible()) << "the monitor was not emptied, but readings came";
    port->keepsNothing = false;
    for (const QString& told :
         {qtTrId("downloadNothingNew").arg(u"12 readings downloaded"_s), qtTrId("downloadEmpty")}) {
        downloadAgain();
        EXPECT_EQ(text("lblOutcome"), told);
        EXPECT_TRUE(page("GraphViewController").isVisible()) << qPrintable(told);
    }
}

TEST_F(DownloadFlowTest, doesNotHoldUpTheProgramsEnd) {
    startEndlessDownload();
    const QSignalSpy closed(app.get(), &AppController::closed);
    app->closeApplicaiton(); // comes back only when the monitor's thread has ended
    EXPECT_EQ(closed.size(), 1);
    clock.stands = false;
    EXPECT_FALSE(QTest::qWaitFor([this] { return !progress().isVisible(); }, 100))
        << "nothing of the download goes on";
}

TEST_F(DownloadFlowTest, theButtonsFollowTheMonitorAndItsID) {
    const std::pair download(true, false), sendID(false, true), none(false, false);
    for (const auto& [ID, enabled] :
         {std::pair("P9", sendID), {"", sendID}, {"P2", sendID}, {"P1", download}}) {
        plan.ID = ID;
        startConnected();
        EXPECT_EQ(enabledButtons(), enabled) << ID;
    }
    plan.faults = {{.kind = SimulatedFault::Kind::badCheckField, .command = Command::id}};
    start();
    waitFor([&] { return enabledButtons() == sendID; }); // the remedy for an ID that cannot be read
    plan.faults = {{.kind = SimulatedFault::Kind::noAnswer, .command = Command::version}};
    start();
    waitFor([&] { return text("lblMonitor") == qtTrId("statusSilent"); });
    EXPECT_EQ(enabledButtons(), none);
    plan.faults.clear();
    startConnected();
    port->plugged = false;
    waitFor([this] { return !status.state().isConnected; });
    EXPECT_EQ(enabledButtons(), none);
    EXPECT_EQ(text("lblMonitor"), qtTrId("statusNotConnected"));
    port->plugged = true;
    waitFor([&] { return enabledButtons() == download; });
    press(Qt::Key_Down);
    EXPECT_EQ(enabledButtons(), sendID);
    panel.messages.clear();
    click("btnSendID");
    EXPECT_EQ(enabledButtons(), none) << "busy";
    EXPECT_EQ(text("lblMonitor"), qtTrId("monitorCounting"));
    app->dataTransfer();
    EXPECT_EQ(window().findChild<QWidget*>(u"ProgressWindowController"_s), nullptr);
    waitFor([this] { return status.state().IDOnDevice == u"P2" && !status.isBusy(); });
    EXPECT_EQ(text("lblMonitorBar"), qtTrId("monitorConnectedID").arg(u"P2"_s));
    EXPECT_EQ(enabledButtons(), download);
    EXPECT_EQ(text("lblMonitor"), qtTrId("statusConnected"));
}

} // namespace zel

#include "AppFixture.h"
#include "app/ProgressWindowController.h"

#include <QProgressBar>
#include <QSignalSpy>

#include <gmock/gmock.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class DownloadTest : public AppTest {
protected:
    DownloadTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        addPatient(u"P2"_s, u"Baker"_s);
        setEraseAfterReading(false);
    }
    ProgressWindowController& progress() {
        return find<ProgressWindowController>("ProgressWindowController");
    }
    /// A download whose answer never comes, caught while it waits.
    void startEndlessDownload() {
        plan.faults = {{.kind = SimulatedFault::Kind::noAnswer, .command = Command::records, .times = 1}};
        startConnected();
        clock.stands = true;
        click("btnDataTransfer");
        waitFor([this] { return progress().isActiveWindow(); });
    }
    int readingsInMonitor() {
        int count = -1;
        worker->submit(
            app.get(), [](BPMModel& monitor) { return monitor.getBPMCycleDataCount(); },
            [&](const MonitorExpected<int>& counted) { count = counted.value_or(-2); });
        waitFor([&] { return count != -1; });
        return count;
    }
    void setEraseAfterReading(bool erases) {
        store.getSetting().eraseRecAfterReading = erases ? 1 : 0;
        ASSERT_TRUE(store.saveSetting());
    }
};

struct Failure {
    const char* name;
    SimulatedFault fault;
    MonitorResult result;
};
class FailingDownloadTest : public DownloadTest, public testing::WithParamInterface<Failure> {};

} // namespace

TEST_F(DownloadTest, withTheMouseFromTheMonitorToTheFileAndTheTable) {
    startConnected();
    download();
    EXPECT_EQ(store.getReadingForCurID().size(), 12U);
    EXPECT_EQ(store.getTrasferLogForCurID().size(), 1U);
    EXPECT_EQ(app->selectedTab(), 1);
    EXPECT_TRUE(page("GraphViewController").isVisible());
    EXPECT_FALSE(progress().isVisible());
    EXPECT_EQ(text("lblOutcome"), u"12 readings downloaded, 12 new"_s);
    EXPECT_EQ(readingsInMonitor(), 12) << "kept, as the settings say";
}

TEST_F(DownloadTest, withTheKeyboardAlone) {
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

TEST_F(DownloadTest, ofTheSameReadingsAgainChangesNothing) {
    startConnected();
    download();
    const QByteArray before = dataFile();
    click("patientBtn");
    download();
    EXPECT_EQ(dataFile(), before);
    EXPECT_TRUE(text("lblOutcome").contains(u"none new"_s)) << qPrintable(text("lblOutcome"));
}

TEST_F(DownloadTest, ofAnEmptyMonitorSaysSo) {
    plan.records.clear();
    startConnected();
    const QByteArray before = dataFile();
    download();
    EXPECT_EQ(text("lblOutcome"), qtTrId("downloadEmpty"));
    EXPECT_EQ(dataFile(), before);
}

TEST_F(DownloadTest, emptiesTheMonitorOnceTheReadingsAreStored) {
    setEraseAfterReading(true);
    startConnected();
    download();
    EXPECT_EQ(store.getReadingForCurID().size(), 12U);
    EXPECT_EQ(readingsInMonitor(), 0);
}

TEST_F(DownloadTest, erasesNothingThatCouldNotBeStored) {
    setEraseAfterReading(true);
    startConnected();
    panel.messages.clear();
    click("btnDataTransfer");
    replaceDataFile("<ZEL><Patient>");
    waitFor([this] { return !panel.messages.empty(); });
    EXPECT_EQ(dataFile(), "<ZEL><Patient>");
    EXPECT_TRUE(panel.messages.first().contains(qtTrId("downloadNotStored").section(u'%', 0, 0)));
    EXPECT_EQ(readingsInMonitor(), 12);
}

TEST_P(FailingDownloadTest, storesNothingSaysWhyAndWorksTheNextTime) {
    setEraseAfterReading(true);
    plan.faults = {GetParam().fault};
    startConnected();
    panel.messages.clear();
    const QByteArray before = dataFile();
    download();
    EXPECT_EQ(dataFile(), before);
    EXPECT_EQ(panel.messages.value(0),
              qtTrId("Warning") + u": "_s + qtTrId("downloadFailed").arg(describe(GetParam().result)));
    click("patientBtn");
    waitFor([this] { return find<QPushButton>("btnDataTransfer").isEnabled(); });
    download();
    EXPECT_EQ(store.getReadingForCurID().size(), 12U);
}
INSTANTIATE_TEST_SUITE_P(Faults, FailingDownloadTest,
                         testing::Values(Failure{"unplugged",
                                                 {.kind = SimulatedFault::Kind::unplug,
                                                  .command = Command::records,
                                                  .times = 1,
                                                  .afterReports = 20,
                                                  .replugAfterOpens = 4},
                                                 MonitorResult::noDevice},
                                         Failure{"garbled",
                                                 {.kind = SimulatedFault::Kind::badCheckField,
                                                  .command = Command::records,
                                                  .times = 3},
                                                 MonitorResult::badCheckField}),
                         [](const auto& parameter) { return parameter.param.name; });

TEST_F(DownloadTest, endsWhenTheUserCancelsIt) {
    startEndlessDownload();
    const QByteArray before = dataFile();
    press(Qt::Key_Escape);
    clock.stands = false;
    waitFor([this] { return !progress().isVisible(); });
    EXPECT_EQ(text("lblOutcome"), qtTrId("downloadCancelled"));
    EXPECT_EQ(dataFile(), before);
    EXPECT_TRUE(session.state().isConnected);
    app->changeTab(0);
    waitFor([this] { return find<QPushButton>("btnDataTransfer").isEnabled(); });
    download();
    EXPECT_EQ(store.getReadingForCurID().size(), 12U) << "the next attempt works";
}

TEST_F(DownloadTest, doesNotHoldUpTheProgramsEnd) {
    startEndlessDownload();
    const QSignalSpy closed(app.get(), &AppController::closed);
    app->closeApplicaiton(); // comes back only when the monitor's thread has ended
    EXPECT_EQ(closed.size(), 1);
    QCoreApplication::processEvents();
    EXPECT_TRUE(progress().isVisible()) << "nothing of the download goes on";
}

TEST_F(DownloadTest, neverStoresAnotherMonitorsReadings) {
    startConnected();
    panel.messages.clear();
    store.setCurrentID(u"P2"_s); // as if the monitor had been changed since it was last asked
    const QByteArray before = dataFile();
    app->dataTransfer();
    waitFor([this] { return !panel.messages.empty(); });
    EXPECT_EQ(panel.messages.first(), qtTrId("Warning") + u": "_s + qtTrId("downloadOtherMonitor"));
    EXPECT_EQ(dataFile(), before);
}

TEST_F(DownloadTest, progressNeverGoesBack) {
    startConnected();
    app->dataTransfer();
    auto& bar = find<QProgressBar>("barProgress");
    std::vector<int> shown;
    QObject::connect(&bar, &QProgressBar::valueChanged, &bar, [&](int value) { shown.push_back(value); });
    waitFor([this] { return !progress().isVisible(); });
    EXPECT_THAT(shown, testing::AllOf(testing::Contains(100), testing::SizeIs(testing::Gt(1U))));
    EXPECT_TRUE(std::ranges::is_sorted(shown));

    app->dataTransfer(); // a new download starts at the beginning
    EXPECT_EQ(bar.value(), 0);
    progress().setProcessInfo(10, 5);
    progress().setProcessInfo(10, 4);
    EXPECT_EQ(bar.value(), 50);
    waitFor([this] { return !progress().isVisible(); });
}

} // namespace zel

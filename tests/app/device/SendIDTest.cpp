#include "WatchTest.h"
#include "app/device/PatientIDSender.h"

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class SendIDTest : public WatchTest {
protected:
    SendIDTest() {
        addPatient(u"P2"_s, u"Baker"_s);
        plan.ID = "OLD";
    }
    void sendID(const QString& ID = u"P2"_s) {
        startConnected();
        panel.messages.clear();
        panel.questions.clear();
        sender = std::make_unique<PatientIDSender>(status, *worker, panel);
        QObject::connect(sender.get(), &PatientIDSender::sent, watch.get(), &MonitorWatch::updateUI);
        sender->sendID(ID);
    }
    /// What the monitor holds in the end: its ID and the number of its readings.
    std::pair<QString, int> monitorHolds() {
        std::optional<std::pair<QString, int>> held;
        worker->submit(
            watch.get(),
            [](BPMModel& monitor) {
                return std::pair(monitor.getBPMID().value_or(u"?"_s),
                                 monitor.getBPMCycleDataCount().value_or(-1));
            },
            [&](const std::pair<QString, int>& answer) { held = answer; });
        waitFor([&] { return held.has_value(); });
        return *held;
    }
    void waitUntilSent() {
        waitFor([this] { return status.state().IDOnDevice == u"P2" && !panel.messages.empty(); });
    }

    std::unique_ptr<PatientIDSender> sender;
};

} // namespace

TEST_F(SendIDTest, stopsWhenTheUserSaysNo) {
    panel.answers[qtTrId("sendID")] = false;
    panel.whenAsked = [this] { EXPECT_TRUE(status.isBusy()) << "nothing else begins behind the question"; };
    sendID();
    EXPECT_FALSE(status.isBusy());
    EXPECT_EQ(monitorHolds(), std::pair(u"OLD"_s, 12));
}

TEST_F(SendIDTest, keepsTheReadingsThatAreWanted) {
    sendID();
    EXPECT_EQ(text("lblMonitorState"), qtTrId("monitorCounting")) << "the window says what it is doing";
    waitUntilSent();
    EXPECT_EQ(panel.questions, (QStringList{qtTrId("sendID"), qtTrId("SendIDDataTitle")}));
    EXPECT_EQ(monitorHolds(), std::pair(u"P2"_s, 12));
    EXPECT_TRUE(panel.messages.value(0).contains(qtTrId("monitorConnectedID").arg(u"P2"_s)));
    EXPECT_EQ(buttons, (QList{true, true})) << "other ones may be enabled now";
}

TEST_F(SendIDTest, deletesTheReadingsThatAreNotWanted) {
    panel.answers[qtTrId("SendIDDataTitle")] = false;
    sendID();
    waitUntilSent();
    EXPECT_EQ(monitorHolds(), std::pair(u"P2"_s, 0));
}

TEST_F(SendIDTest, asksNothingAboutAnEmptyMonitor) {
    plan.records.clear();
    sendID();
    waitUntilSent();
    EXPECT_EQ(panel.questions, QStringList(qtTrId("sendID")));
}

TEST_F(SendIDTest, changesNothingWhenAStepFails) {
    const SimulatedFault notCounted{
        .kind = SimulatedFault::Kind::noAnswer, .command = Command::records, .times = 3};
    const SimulatedFault notTaken{.kind = SimulatedFault::Kind::noAnswer, .command = Command::sendID};
    for (const auto& [fault, keepsReadings] :
         {std::pair(notCounted, true), {notTaken, true}, {notTaken, false}}) {
        plan.faults = {fault};
        panel.answers[qtTrId("SendIDDataTitle")] = keepsReadings;
        sendID();
        waitFor([this] { return !panel.messages.empty(); });
        EXPECT_EQ(panel.messages.value(0),
                  qtTrId("Warning") + u": "_s + qtTrId("sendIDFailed").arg(describe(MonitorResult::timeOut)));
        EXPECT_FALSE(status.isBusy());
        EXPECT_EQ(monitorHolds(), std::pair(u"OLD"_s, 12));
    }
}

TEST_F(SendIDTest, refusesWhatTheMonitorCannotKeep) {
    for (const QString& ID : {u"twelve-chars"_s, u"Øre"_s}) {
        sendID(ID);
        EXPECT_EQ(panel.messages,
                  QStringList(qtTrId("Warning") + u": "_s + qtTrId("IDNotForMonitor").arg(ID)));
        EXPECT_TRUE(panel.questions.empty());
    }
}

} // namespace zel

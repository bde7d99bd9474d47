#include "AppFixture.h"

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class SendIDTest : public AppTest {
protected:
    SendIDTest() {
        addPatient(u"P2"_s, u"Baker"_s);
        plan.ID = "OLD";
    }
    void sendID() {
        startConnected();
        panel.messages.clear();
        panel.questions.clear();
        click("btnSendID");
    }
    /// What the monitor holds in the end: its ID and the number of its readings.
    std::pair<QString, int> monitorHolds() {
        std::optional<std::pair<QString, int>> held;
        worker->submit(
            app.get(),
            [](BPMModel& monitor) {
                return std::pair(monitor.getBPMID().value_or(u"?"_s),
                                 monitor.getBPMCycleDataCount().value_or(-1));
            },
            [&](const std::pair<QString, int>& answer) { held = answer; });
        waitFor([&] { return held.has_value(); });
        return *held;
    }
    void waitUntilSent() {
        waitFor([this] { return session.state().IDOnDevice == u"P2" && !panel.messages.empty(); });
    }
};

} // namespace

TEST_F(SendIDTest, stopsWhenTheUserSaysNo) {
    panel.answers[qtTrId("sendID")] = false;
    panel.whenAsked = [this] { EXPECT_TRUE(session.isBusy()) << "nothing else begins behind the question"; };
    sendID();
    EXPECT_FALSE(session.isBusy());
    EXPECT_EQ(monitorHolds(), std::pair(u"OLD"_s, 12));
}

TEST_F(SendIDTest, keepsTheReadingsThatAreWanted) {
    sendID();
    EXPECT_EQ(text("lblMonitorState"), qtTrId("monitorCounting")) << "the window says what it is doing";
    waitUntilSent();
    EXPECT_EQ(panel.questions, (QStringList{qtTrId("sendID"), qtTrId("SendIDDataTitle")}));
    EXPECT_EQ(monitorHolds(), std::pair(u"P2"_s, 12));
    EXPECT_TRUE(panel.messages.first().contains(qtTrId("monitorConnectedID").arg(u"P2"_s)));
    EXPECT_TRUE(find<QPushButton>("btnDataTransfer").isEnabled());
    EXPECT_FALSE(find<QPushButton>("btnSendID").isEnabled());
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

TEST_F(SendIDTest, changesNothingWhenTheReadingsCannotBeCounted) {
    plan.faults = {{.kind = SimulatedFault::Kind::noAnswer, .command = Command::records, .times = 3}};
    sendID();
    waitFor([this] { return !panel.messages.empty(); });
    EXPECT_EQ(panel.messages.first(),
              qtTrId("Warning") + u": "_s + qtTrId("sendIDFailed").arg(describe(MonitorResult::timeOut)));
    EXPECT_FALSE(session.isBusy());
    EXPECT_EQ(monitorHolds(), std::pair(u"OLD"_s, 12));
}

TEST_F(SendIDTest, refusesWhatTheMonitorCannotKeep) {
    for (const QString& ID : {u"twelve-chars"_s, u"Øre"_s}) {
        addPatient(ID, u"Aaron"_s);
        store.setCurrentID(ID);
        app.reset();
        session.update([](MonitorState& state) { state = {}; });
        panel.messages.clear();
        sendID();
        ASSERT_EQ(store.getCurrentID(), ID);
        EXPECT_EQ(panel.messages,
                  QStringList(qtTrId("Warning") + u": "_s + qtTrId("IDNotForMonitor").arg(ID)));
        EXPECT_TRUE(panel.questions.empty());
    }
}

} // namespace zel

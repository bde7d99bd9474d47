#include "AppFixture.h"

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class PollingTest : public AppTest {
protected:
    PollingTest() { addPatient(u"P1"_s, u"Adams"_s); }
    /// As long as several cycles take.
    void letPollingRun() {
        const int before = port->opened;
        port->plugged = false; // each query of an absent monitor is an attempt to open it
        waitFor([&] { return port->opened > before + 3; });
    }
};

struct ClockCase {
    int offset;
    bool asks;
};
class ClockQuestionTest : public PollingTest, public testing::WithParamInterface<ClockCase> {};

} // namespace

TEST_P(ClockQuestionTest, isAskedFrom61SecondsOn) {
    plan.clockOffset = std::chrono::seconds(GetParam().offset);
    startConnected();
    EXPECT_EQ(panel.questions.contains(qtTrId("Synchronization")), GetParam().asks);
    EXPECT_EQ(text("lblMonitorClock"), qtTrId("clockRight")) << "set when it was off";
}
INSTANTIATE_TEST_SUITE_P(Offsets, ClockQuestionTest,
                         testing::Values(ClockCase{0, false}, ClockCase{60, false}, ClockCase{61, true},
                                         ClockCase{-60, false}, ClockCase{-61, true},
                                         ClockCase{90000, true}));

TEST_F(PollingTest, leavesTheClockAloneWhenTheUserSaysNo) {
    plan.clockOffset = std::chrono::hours(3);
    panel.answers[qtTrId("Synchronization")] = false;
    startConnected();
    EXPECT_EQ(text("lblMonitorClock"), qtTrId("clockAhead").arg(qtTrId("clockHours", 3)));
}

TEST_F(PollingTest, asksOnceWhenTheClockCannotBeSet) {
    plan.clockOffset = -std::chrono::seconds(90);
    plan.faults = {{.kind = SimulatedFault::Kind::noAnswer, .command = Command::setDate}};
    start();
    waitFor([this] { return panel.messages.size() == 2 && !session.isBusy(); });
    EXPECT_TRUE(panel.messages.first().contains(
        qtTrId("clockNotSetAtGreeting").arg(describe(MonitorResult::timeOut))));
    EXPECT_EQ(text("lblMonitorClock"), qtTrId("clockBehind").arg(qtTrId("clockMinutes", 1)));
    letPollingRun();
    EXPECT_EQ(panel.questions.size(), 1);
}

TEST_F(PollingTest, looksForAnotherIDAlsoWhenTheClockCannotBeRead) {
    plan.faults = {{.kind = SimulatedFault::Kind::noAnswer, .command = Command::date}};
    startConnected();
    worker->submit(
        app.get(), [](BPMModel& monitor) { return monitor.sendID(u"P2"_s, false); }, [](MonitorResult) {});
    waitFor([&] { return session.state().IDOnDevice == u"P2"; });
    EXPECT_EQ(panel.messages.size(), 1);
}

TEST_F(PollingTest, asksForTheClockBeforeItAnnouncesTheID) {
    plan.clockOffset = std::chrono::hours(3);
    panel.whenAsked = [this] { EXPECT_TRUE(panel.messages.empty()); };
    startConnected();
    ASSERT_EQ(panel.questions.size(), 1);
    EXPECT_EQ(panel.messages,
              QStringList(qtTrId("monitorConnected") + u": "_s + qtTrId("monitorConnectedID").arg(u"P1"_s)));
}

TEST_F(PollingTest, tellsWhoseMonitorIsConnected) {
    const std::vector<std::pair<std::string, QString>> cases{{"P9", qtTrId("newIDFromDevice").arg(u"P9"_s)},
                                                             {"", qtTrId("monitorWithoutID")}};
    for (const auto& [ID, words] : cases) {
        app.reset();
        session.update([](MonitorState& state) { state = {}; });
        panel.messages.clear();
        plan.ID = ID;
        startConnected();
        EXPECT_EQ(panel.messages, QStringList(qtTrId("Warning") + u": "_s + words));
        EXPECT_FALSE(find<QPushButton>("btnDataTransfer").isEnabled());
        EXPECT_TRUE(find<QPushButton>("btnSendID").isEnabled());
    }
}

TEST_F(PollingTest, noticesThatTheMonitorWasPulledOutAndPluggedIn) {
    startConnected();
    EXPECT_TRUE(find<QPushButton>("btnDataTransfer").isEnabled());
    port->plugged = false;
    waitFor([this] { return !session.state().isConnected; });
    EXPECT_FALSE(find<QPushButton>("btnDataTransfer").isEnabled());
    EXPECT_FALSE(session.state().IDOnDevice);
    EXPECT_EQ(panel.messages.size(), 1) << "nobody is told of what he did himself";
    port->plugged = true;
    waitFor([this] { return panel.messages.size() == 2; });
}

TEST_F(PollingTest, takesAnotherIDOverSilently) {
    addPatient(u"P2"_s, u"Baker"_s);
    startConnected();
    bool sent = false;
    worker->submit(
        app.get(), [](BPMModel& monitor) { return monitor.sendID(u"P2"_s, false); },
        [&](MonitorResult result) { sent = result == MonitorResult::success; });
    waitFor([&] { return session.state().IDOnDevice == u"P2"; });
    EXPECT_TRUE(sent);
    EXPECT_EQ(panel.messages.size(), 1);
    EXPECT_FALSE(find<QPushButton>("btnDataTransfer").isEnabled()) << "P1 is selected";
}

TEST_F(PollingTest, saysWhatHelpsWhenTheMonitorMayNotBeOpened) {
    startsPlugged = false;
    start();
    port->denied = true;
    waitFor([this] { return text("lblMonitorState") == describe(MonitorResult::accessDenied); });
    letPollingRun();
    EXPECT_TRUE(panel.messages.empty()) << "said in the window, not over and over in boxes";
}

TEST_F(PollingTest, triesAgainWhenClockOrIDCannotBeRead) {
    for (const Command command : {Command::date, Command::id}) {
        app.reset();
        session.update([](MonitorState& state) { state = {}; });
        panel.messages.clear();
        plan.faults = {{.kind = SimulatedFault::Kind::badCheckField, .command = command, .times = 4}};
        bool told = false;
        const auto watching = QObject::connect(&session, &MonitorSession::changed, [&] {
            told = told || describe(session.state()).contains(describe(MonitorResult::badCheckField));
        });
        startConnected();
        waitFor([this] {
            return session.state().secondsAhead && session.state().trouble == MonitorResult::success;
        });
        QObject::disconnect(watching);
        EXPECT_TRUE(told);
        EXPECT_EQ(panel.messages.size(), 1) << "the ID is announced once";
    }
}

} // namespace zel

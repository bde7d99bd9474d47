#include "WatchTest.h"

#include <gmock/gmock.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class PollingTest : public WatchTest {
protected:
    /// As long as several cycles take.
    void letPollingRun() {
        const int before = port->opened;
        port->plugged = false; // each query of an absent monitor is an attempt to open it
        waitFor([&] { return port->opened > before + 3; });
    }
    /// Takes the monitor away, to where it may not be opened, or gives it back.
    void letOpen(bool allowed) {
        port->denied = true; // never just absent
        port->plugged = allowed;
        port->denied = !allowed;
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
    panel.answers[qtTrId("Synchronization")] = false;
    for (const auto& [minutes, words] :
         {std::pair(119, qtTrId("clockMinutes", 119)), std::pair(180, qtTrId("clockHours", 3)),
          std::pair(47 * 60, qtTrId("clockHours", 47)), std::pair(49 * 60, qtTrId("clockDays", 2))}) {
        plan.clockOffset = std::chrono::minutes(minutes) + std::chrono::seconds(30);
        startConnected();
        EXPECT_EQ(text("lblMonitorClock"), qtTrId("clockAhead").arg(words));
    }
}

TEST_F(PollingTest, asksOnceWhenTheClockCannotBeSet) {
    plan.clockOffset = -std::chrono::seconds(90);
    plan.faults = {{.kind = SimulatedFault::Kind::noAnswer, .command = Command::setDate}};
    start();
    waitFor([this] { return panel.messages.size() == 1 && status.state().IDOnDevice && !status.isBusy(); });
    EXPECT_TRUE(panel.messages.value(0).contains(
        qtTrId("clockNotSetAtGreeting").arg(describe(MonitorResult::timeOut))));
    EXPECT_EQ(text("lblMonitorClock"), qtTrId("clockBehind").arg(qtTrId("clockMinutes", 1)));
    letPollingRun();
    EXPECT_EQ(panel.questions.size(), 1);
}

TEST_F(PollingTest, asksInWordsOfItsOwnAboutAClockThatIsNotSet) {
    prepare = [this] { port->isClockUnset = true; };
    for (const bool sets : {false, true}) {
        panel.answers[qtTrId("Synchronization")] = sets;
        panel.questions.clear();
        startConnected();
        EXPECT_EQ(panel.questions, QStringList(qtTrId("Synchronization")));
        EXPECT_EQ(panel.asked, qtTrId("clockUnsetAsk"));
        EXPECT_EQ(text("lblMonitorClock"), sets ? qtTrId("clockRight") : qtTrId("clockUnset"));
        EXPECT_EQ(port->isClockUnset, !sets);
        letPollingRun();
        EXPECT_EQ(panel.questions.size(), 1);
    }
}

TEST_F(PollingTest, looksWhetherTheClockWasSet) {
    plan.clockOffset = std::chrono::hours(3);
    for (const bool isUnset : {true, false}) {
        prepare = [&] {
            port->keepsNothing = true;
            port->isClockUnset = isUnset;
        };
        start();
        waitFor([this] { return panel.messages.size() == 1 && !status.isBusy(); });
        EXPECT_TRUE(panel.messages.value(0).contains(describe(MonitorResult::notTaken)))
            << qPrintable(panel.messages.value(0));
    }
    EXPECT_EQ(text("lblMonitorClock"), qtTrId("clockAhead").arg(qtTrId("clockHours", 3)));
}

TEST_F(PollingTest, saysNothingWhileTheUserTypes) {
    plan.clockOffset = std::chrono::hours(3);
    panel.isTyping = true;
    start();
    waitFor([this] { return panel.heldBack.size() == 1; });
    EXPECT_TRUE(panel.questions.empty());
    std::exchange(panel.heldBack, {}).front()();
    EXPECT_EQ(panel.questions.size(), 1);
    waitFor([this] { return status.state().IDOnDevice && !status.isBusy(); });
    EXPECT_TRUE(panel.heldBack.empty()) << "the ID is no interruption";
}

TEST_F(PollingTest, saysThatAnAttachedMonitorDoesNotAnswer) {
    using Kind = SimulatedFault::Kind;
    struct Case {
        Kind kind;
        MonitorResult why;
        QString shortly;
    };
    for (const Case& c :
         {Case{Kind::noAnswer, MonitorResult::timeOut, qtTrId("statusSilent")},
          Case{Kind::badCheckField, MonitorResult::badCheckField, qtTrId("statusDamaged")},
          Case{Kind::badFixedContent, MonitorResult::badFixedContent, qtTrId("statusDamaged")},
          Case{Kind::wrongAcknowledgement, MonitorResult::noAcknowledgement, qtTrId("statusRefusing")},
          Case{Kind::writeError, MonitorResult::writeFailed, qtTrId("statusBroken")}}) {
        SCOPED_TRACE(c.shortly.toStdString());
        plan.faults = {{.kind = c.kind, .command = Command::version}};
        start();
        QStringList shown;
        const auto watching =
            QObject::connect(&status, &MonitorStatus::changed, [&] { shown += describe(status.state()); });
        waitFor(
            [&] { return text("lblMonitorState") == qtTrId("monitorNotAnswering").arg(describe(c.why)); });
        QObject::disconnect(watching);
        EXPECT_FALSE(shown.contains(qtTrId("monitorNotConnected")));
        EXPECT_EQ(describeShortly(status.state()), c.shortly);
    }
    startsPlugged = false;
    start();
    letOpen(false);
    waitFor([this] { return describeShortly(status.state()) == qtTrId("statusLocked"); });
    port->denied = false;
    waitFor([this] { return describeShortly(status.state()) == qtTrId("statusNotConnected"); });
    EXPECT_EQ(text("lblMonitorState"), qtTrId("monitorNotConnected"));
}

TEST_F(PollingTest, looksForAnotherIDAlsoWhenTheClockCannotBeRead) {
    plan.faults = {{.kind = SimulatedFault::Kind::noAnswer, .command = Command::date}};
    startConnected();
    worker->submit(
        watch.get(), [](BPMModel& monitor) { return monitor.sendID(u"P2"_s, false); }, [](MonitorResult) {});
    waitFor([&] { return status.state().IDOnDevice == u"P2"; });
}

TEST_F(PollingTest, asksForTheClockBeforeItReadsTheID) {
    plan.clockOffset = std::chrono::hours(3);
    panel.whenAsked = [this] { EXPECT_FALSE(status.state().IDOnDevice); };
    startConnected();
    EXPECT_EQ(panel.questions.size(), 1);
}

TEST_F(PollingTest, showsWhatItHasReadAndOpensNoBox) {
    struct Case {
        std::string ID;
        QString shown;
        std::string model;
    };
    for (const Case& c : {Case{"P9", u"P9"_s, "41"}, Case{"", qtTrId("noID"), "36"}}) {
        plan.ID = c.ID;
        plan.model = c.model;
        startConnected();
        EXPECT_EQ(text("lblMonitorID"), c.shown);
        EXPECT_EQ(status.state().isAFib, c.model == "41");
        EXPECT_TRUE(panel.messages.empty());
    }
}

TEST_F(PollingTest, noticesThatTheMonitorWasPulledOutAndPluggedIn) {
    startConnected();
    port->plugged = false;
    waitFor([this] { return !status.state().isConnected; });
    EXPECT_EQ(buttons, (QList{true, false}));
    EXPECT_FALSE(status.state().IDOnDevice);
    port->plugged = true;
    waitFor([this] { return status.state().IDOnDevice && !status.isBusy(); });
    EXPECT_EQ(buttons, (QList{true, false, true}));
}

TEST_F(PollingTest, takesAnotherIDOver) {
    addPatient(u"P2"_s, u"Baker"_s);
    startConnected();
    bool sent = false;
    worker->submit(
        watch.get(), [](BPMModel& monitor) { return monitor.sendID(u"P2"_s, false); },
        [&](MonitorResult result) { sent = result == MonitorResult::success; });
    waitFor([&] { return status.state().IDOnDevice == u"P2"; });
    EXPECT_TRUE(sent);
    EXPECT_EQ(buttons, (QList{true, true})) << "other ones may be enabled now";
}

TEST_F(PollingTest, saysWhatHelpsWhenTheMonitorMayNotBeOpened) {
    plan.faults = {{.kind = SimulatedFault::Kind::late, // it is just coming up
                    .command = Command::version,
                    .delay = std::chrono::milliseconds(100)}};
    startsPlugged = false;
    start();
    letOpen(false);
    waitFor([this] { return text("lblMonitorState") == describe(MonitorResult::accessDenied); });
    letPollingRun();
    EXPECT_TRUE(panel.messages.empty()) << "said in the window, not over and over in boxes";

    letOpen(true);
    waitFor([this] { return status.state().IDOnDevice == u"P1" && !status.isBusy(); });
    letOpen(false);
    waitFor([this] { return text("lblMonitorState") == describe(MonitorResult::accessDenied); });
    EXPECT_FALSE(status.state().IDOnDevice);
    EXPECT_EQ(buttons, (QList{true, false}));

    std::vector<MonitorResult> troubles;
    QObject::connect(&status, &MonitorStatus::changed, watch.get(),
                     [&] { troubles.push_back(status.state().trouble); });
    letOpen(true);
    waitFor([this] { return status.state().isConnected && !status.isBusy(); });
    EXPECT_THAT(troubles, testing::Contains(MonitorResult::timeOut))
        << "one that was away gets a short look first";
}

TEST_F(PollingTest, triesAgainWhenClockOrIDCannotBeRead) {
    for (const Command command : {Command::date, Command::id}) {
        plan.faults = {{.kind = SimulatedFault::Kind::badCheckField, .command = command, .times = 8}};
        bool told = false;
        const auto watching = QObject::connect(&status, &MonitorStatus::changed, [&] {
            told = told || describe(status.state()).contains(describe(MonitorResult::badCheckField));
        });
        startConnected();
        waitFor([this] {
            return status.state().secondsAhead && status.state().trouble == MonitorResult::success;
        });
        QObject::disconnect(watching);
        EXPECT_TRUE(told);
    }
}

} // namespace zel

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
        ask(ID);
    }
    void ask(const QString& ID) {
        panel.messages.clear();
        panel.questions.clear();
        sender = std::make_unique<PatientIDSender>(PatientIDSender::Parts{status, *worker, store, panel});
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
        waitFor([this] { return status.state().IDOnDevice == u"P2" && !status.isBusy(); });
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
    EXPECT_TRUE(panel.asked.contains(qtTrId("monitorHoldsOther").arg(u"OLD"_s)));
    EXPECT_EQ(text("lblMonitorState"), qtTrId("monitorCounting")) << "the window says what it is doing";
    waitUntilSent();
    EXPECT_EQ(panel.questions, (QStringList{qtTrId("sendID"), qtTrId("SendIDDataTitle")}));
    EXPECT_TRUE(panel.asked.contains(qtTrId("monitorHoldsOther").arg(u"OLD"_s)));
    EXPECT_EQ(monitorHolds(), std::pair(u"P2"_s, 12));
    EXPECT_EQ(buttons, (QList{true, true})) << "other ones may be enabled now";
}

TEST_F(SendIDTest, deletesTheReadingsThatAreNotWanted) {
    plan.ID = "P1";
    panel.keepAnswer = KeepAnswer::erase;
    sendID();
    waitUntilSent();
    EXPECT_TRUE(panel.asked.contains(u"Adams"_s)) << "whose they were: " << qPrintable(panel.asked);
    EXPECT_EQ(monitorHolds(), std::pair(u"P2"_s, 0));
}

TEST_F(SendIDTest, leavesAllAsItIsWhenTheUserCancels) {
    panel.keepAnswer = KeepAnswer::cancel;
    sendID();
    waitFor([this] { return panel.questions.size() == 2 && !status.isBusy(); });
    EXPECT_EQ(monitorHolds(), std::pair(u"OLD"_s, 12));
}

TEST_F(SendIDTest, namesNobodyWhereAnotherMonitorMayHaveBeenCounted) {
    plan.faults = {{.kind = SimulatedFault::Kind::unplug,
                    .command = Command::records,
                    .times = 1,
                    .replugAfterOpens = 0}};
    panel.keepAnswer = KeepAnswer::cancel;
    sendID();
    waitFor([this] { return panel.questions.size() == 2 && !status.isBusy(); });
    EXPECT_TRUE(panel.asked.contains(qtTrId("monitorHoldsUnknown"))) << qPrintable(panel.asked);
}

TEST_F(SendIDTest, isTheRemedyForAnIDThatCannotBeRead) {
    plan.faults = {{.kind = SimulatedFault::Kind::badFixedContent, .command = Command::id}};
    start();
    waitFor([this] { return status.state().trouble == MonitorResult::badFixedContent && !status.isBusy(); });
    bool wasBusy = false;
    const auto watching =
        QObject::connect(&status, &MonitorStatus::changed, [&] { wasBusy |= status.isBusy(); });
    for (int i = 0; i < 3; ++i) // cycles of the polling, each of which asks for it
        std::ignore = monitorHolds();
    QObject::disconnect(watching);
    EXPECT_FALSE(wasBusy) << "the button stays enabled";
    ask(u"P2"_s);
    waitFor([this] { return !panel.messages.empty(); });
    EXPECT_TRUE(panel.asked.contains(qtTrId("monitorHoldsUnknown")));
    EXPECT_TRUE(panel.messages.value(0).contains(describe(MonitorResult::unconfirmed)))
        << "this one's ID stays unreadable: " << qPrintable(panel.messages.value(0));
}

TEST_F(SendIDTest, asksNothingAboutAnEmptyMonitor) {
    plan.records.clear();
    sendID();
    waitUntilSent();
    EXPECT_EQ(panel.questions, QStringList(qtTrId("sendID")));
}

TEST_F(SendIDTest, saysWhatTheMonitorHoldsWhenAStepFails) {
    using Kind = SimulatedFault::Kind;
    const SimulatedFault notTaken{.kind = Kind::noAnswer, .command = Command::sendID};
    const SimulatedFault takenOnce{.kind = Kind::late, .command = Command::sendID, .times = 1};
    const SimulatedFault countedOnce{.kind = Kind::late, .command = Command::records, .times = 1};
    const SimulatedFault notCounted{.kind = Kind::noAnswer, .command = Command::records, .times = 3};
    const QString silence = describe(MonitorResult::timeOut), ignored = describe(MonitorResult::notTaken);
    struct Case {
        const char* what;
        std::vector<SimulatedFault> faults;
        KeepAnswer answer;
        bool keepsNothing;
        QString told, IDAfter;
        int readingsAfter;
    };
    const Case cases[] = {
        {"not counted",
         {notCounted},
         KeepAnswer::keep,
         false,
         qtTrId("sendIDFailed").arg(silence),
         u"OLD"_s,
         12},
        {"not written",
         {notTaken},
         KeepAnswer::keep,
         false,
         qtTrId("sendIDFailed").arg(silence),
         u"OLD"_s,
         12},
        {"not erased",
         {notTaken},
         KeepAnswer::erase,
         false,
         qtTrId("sendIDFailed").arg(silence),
         u"OLD"_s,
         12},
        {"erased only",
         {takenOnce, notTaken},
         KeepAnswer::erase,
         false,
         qtTrId("sendIDFailedErased").arg(silence),
         u"P2"_s,
         0},
        {"acknowledged only", {}, KeepAnswer::keep, true, qtTrId("sendIDFailed").arg(ignored), u"OLD"_s, 12},
        {"erasing acknowledged only",
         {},
         KeepAnswer::erase,
         true,
         qtTrId("sendIDFailed").arg(ignored),
         u"OLD"_s,
         12},
        {"erased, but who knows",
         {countedOnce, notCounted},
         KeepAnswer::erase,
         false,
         qtTrId("sendIDFailed").arg(describe(MonitorResult::unconfirmed)),
         u"P2"_s,
         0},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.what);
        plan.faults = one.faults;
        panel.keepAnswer = one.answer;
        prepare = [&] { port->keepsNothing = one.keepsNothing; };
        sendID();
        waitFor([this] { return !panel.messages.empty(); });
        const QString told = panel.messages.value(0);
        EXPECT_TRUE(told.contains(one.told)) << qPrintable(told);
        if (one.what != cases[0].what) {
            EXPECT_TRUE(told.contains(one.IDAfter)) << qPrintable(told);
            EXPECT_TRUE(told.contains(qtTrId("monitorHoldsReadings", one.readingsAfter))) << qPrintable(told);
        }
        EXPECT_FALSE(status.isBusy());
        EXPECT_EQ(monitorHolds(), std::pair(one.IDAfter, one.readingsAfter));
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

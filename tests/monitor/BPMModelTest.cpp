#include "monitor/BPMModel.h"

#include "Outcome.h"
#include "ScriptedPort.h"
#include "monitor/SimulatedMonitor.h"
#include "monitor/SimulatedMonitorPlan.h"
#include "support/ManualClock.h"

#include <gtest/gtest.h>

#include <functional>
#include <thread>

namespace zel {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST(BPMModel, CapabilityByModelCode) {
    for (const auto code : {"41"_L1, "42"_L1, "43"_L1, "44"_L1})
        EXPECT_EQ(BPMModel::capability(code), (ModelCapability{.isAFib = true})) << code.data();
    for (const auto code : {"31"_L1, "32"_L1, "35"_L1, "36"_L1, "39"_L1, "3A"_L1, "3B"_L1, "3C"_L1})
        EXPECT_EQ(BPMModel::capability(code), (ModelCapability{.isPAD = true})) << code.data();
    for (const auto code : {"33"_L1, "34"_L1, "37"_L1, "38"_L1, "40"_L1, "3a"_L1, ""_L1})
        EXPECT_EQ(BPMModel::capability(code), ModelCapability{}) << code.data();
}

TEST(BPMModel, WhatFitsTheMonitor) {
    for (const auto& good : {u"A"_s, u"ABCDEFGHIJK"_s, u"a b-~!"_s})
        EXPECT_TRUE(BPMModel::fitsMonitor(good));
    for (const auto& bad : {u""_s, u"ABCDEFGHIJKL"_s, u" A"_s, u"A "_s, u"\u00C4"_s, u"A\tB"_s})
        EXPECT_FALSE(BPMModel::fitsMonitor(bad));
}

TEST(BPMModel, LowerCaseModelCodeIsKeyedInUpperCase) {
    ScriptedPort port;
    ManualClock clock;
    BPMModel model(port, clock);
    EXPECT_FALSE(model.checkIsConnected()); // the probe
    EXPECT_EQ(model.lastResult(), MonitorResult::timeOut);
    port.answers = {reply(checked("3035304031")), reply(checked("3035303a31"))};
    EXPECT_TRUE(model.checkIsConnected()); // a model that is not known
    EXPECT_FALSE(model.isPAD() || model.isAFib());
    EXPECT_TRUE(model.checkIsConnected());
    EXPECT_TRUE(model.isPAD());
    port.opening = PortOpen::denied;
    port.failReads = true;
    EXPECT_FALSE(model.checkIsConnected());
    EXPECT_EQ(model.lastResult(), MonitorResult::accessDenied);
    EXPECT_FALSE(model.isPAD());
    EXPECT_EQ(outcome(model.getBPMID()), MonitorResult::accessDenied);
}

class BPMModelTest : public testing::Test {
protected:
    void SetUp() override { std::ignore = model.checkIsConnected(); }

    ManualClock clock;
    SimulatedMonitor port{builtInPlan(clock.now()), clock};
    BPMModel model{port, clock};
};

TEST_F(BPMModelTest, WritesAndReadsBackTheID) {
    for (const auto& ID : {u"Z"_s, u"/:;<=>?[]{~"_s, u"J. O'Neil"_s}) {
        EXPECT_EQ(model.sendID(ID, false), MonitorResult::success);
        EXPECT_EQ(model.getBPMID().value_or(u"failed"_s), ID);
    }
    EXPECT_EQ(model.sendID(u"TWELVE CHARS"_s, false), MonitorResult::unfitID);
    EXPECT_EQ(model.getBPMID().value_or(u"failed"_s), u"J. O'Neil"_s);
    EXPECT_GT(model.getBPMCycleDataCount().value_or(0), 0);
    EXPECT_EQ(model.eraseData(u"A1"_s), MonitorResult::success);
    EXPECT_EQ(model.getBPMCycleDataCount().value_or(-1), 0);
    EXPECT_EQ(model.getBPMID().value_or(u"failed"_s), u"A1"_s);
}

TEST_F(BPMModelTest, ChangesNoMonitorThatWasPluggedInSince) {
    const int held = model.getBPMCycleDataCount().value_or(0);
    port.unplug();
    port.plug();
    EXPECT_EQ(model.eraseData(u"A1"_s), MonitorResult::readFailed);
    EXPECT_EQ(model.getBPMCycleDataCount().value_or(0), held);
    EXPECT_EQ(model.getBPMID().value_or(u"failed"_s), u"DEMO1"_s);
    port.unplug();
    port.plug();
    EXPECT_EQ(model.sendID(u"A1"_s, false), MonitorResult::readFailed) << "its readings would be A1's";
    EXPECT_EQ(model.getBPMID().value_or(u"failed"_s), u"DEMO1"_s);
    EXPECT_EQ(model.eraseData(u"A1"_s), MonitorResult::success) << "once it has been asked again";
}

TEST_F(BPMModelTest, SetsTheMonitorsClock) {
    SimulatedMonitorPlan plan;
    plan.clockOffset = -3661s;
    SimulatedMonitor late(plan, clock);
    BPMModel lateModel(late, clock);
    std::ignore = lateModel.checkIsConnected();
    const auto lag = [&] { return clock.now() - lateModel.readBPMDate().value(); };
    EXPECT_NEAR(seconds(lag()), 3661, 1);
    EXPECT_EQ(lateModel.setBPMDate(), MonitorResult::success);
    EXPECT_NEAR(seconds(lag()), 1, 1); // the frame takes 1.2 s
    clock.advance(40 * 24h);
    EXPECT_NEAR(seconds(lag()), 1, 1);
}

TEST_F(BPMModelTest, ChangeThatWasNotMadeFails) {
    using Kind = SimulatedFault::Kind;
    const auto sendID = [](BPMModel& monitor) { return monitor.sendID(u"NEW"_s, false); };
    const auto erase = [](BPMModel& monitor) { return monitor.eraseData(u"DEMO1"_s); };
    const auto setClock = [](BPMModel& monitor) { return monitor.setBPMDate(); };
    const struct {
        const char* what;
        std::function<MonitorResult(BPMModel&)> change;
        Kind kind;
        Command command;
        int times;
        MonitorResult result;
    } cases[] = {
        {"ID", sendID, Kind::notTaken, Command::sendID, 1, MonitorResult::notTaken},
        {"ID unread", sendID, Kind::noAnswer, Command::id, 3, MonitorResult::unconfirmed},
        {"ID read late", sendID, Kind::wrongByte, Command::id, 2, MonitorResult::success},
        {"erased", erase, Kind::notTaken, Command::sendID, 1, MonitorResult::notTaken},
        {"erased, unread", erase, Kind::noAnswer, Command::records, 3, MonitorResult::unconfirmed},
        {"clock", setClock, Kind::notTaken, Command::setDate, 1, MonitorResult::notTaken},
        {"clock unread", setClock, Kind::badCheckField, Command::date, 3, MonitorResult::unconfirmed},
    };
    for (const auto& [what, change, kind, command, times, result] : cases) {
        SimulatedMonitorPlan plan = builtInPlan(clock.now());
        plan.clockOffset = 30s; // as much as no setting and reading takes
        plan.isClockSet = kind != Kind::badCheckField;
        plan.faults = {{.kind = kind, .command = command, .times = times}};
        SimulatedMonitor faulty(plan, clock);
        BPMModel monitor(faulty, clock);
        std::ignore = monitor.checkIsConnected();
        EXPECT_EQ(change(monitor), result) << what;
    }
}

TEST_F(BPMModelTest, ClockThatWasNeverSetIsNoFailure) {
    SimulatedMonitorPlan plan;
    plan.isClockSet = false;
    SimulatedMonitor unset(plan, clock);
    BPMModel monitor(unset, clock);
    std::ignore = monitor.checkIsConnected();
    EXPECT_EQ(outcome(monitor.readBPMDate()), MonitorResult::clockNotSet);
    EXPECT_EQ(monitor.setBPMDate(), MonitorResult::success);
    EXPECT_NEAR(seconds(clock.now() - monitor.readBPMDate().value()), 1, 1);
}

TEST_F(BPMModelTest, ClockThatSaysNoDate) {
    ScriptedPort scripted;
    BPMModel other(scripted, clock);
    std::ignore = other.checkIsConnected();
    const std::string settings(70, '0');
    // Each is asked for three times. The year before too few digits at a time would be taken for 201.
    scripted.answers = {reply(checked("13321920140509" + settings)), {}, {},
                        reply(checked("032219201 0509" + settings)), {}, {},
                        reply(checked("03221920140509" + settings))};
    EXPECT_EQ(outcome(other.readBPMDate()), MonitorResult::badFixedContent);
    EXPECT_EQ(outcome(other.readBPMDate()), MonitorResult::badFixedContent);
    const auto third = other.readBPMDate();
    EXPECT_EQ(DateToStr(third.value(), u"yyyy-MM-dd HH:mm:ss"_s), u"2019-03-22 14:05:09"_s);
}

TEST(BPMModelThreads, InterruptFromAnotherThreadEndsTheExchange) {
    SystemClock clock;
    SimulatedMonitorPlan plan;
    plan.faults = {{.kind = SimulatedFault::Kind::halfAnswer, .command = Command::records}};
    plan.records.assign(255, std::string(32, '0'));
    SimulatedMonitor port(plan, clock);
    BPMModel model(port, clock);
    auto result = MonitorResult::success;
    std::thread worker([&] { result = outcome(model.getBPMCycleData([](int, int) {})); });
    model.interrupt(); // before, in or after its first wait: the answer never gets complete by itself
    worker.join();
    EXPECT_EQ(result, MonitorResult::interrupted);
}

} // namespace
} // namespace zel

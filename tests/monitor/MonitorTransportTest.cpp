#include "Outcome.h"
#include "ScriptedPort.h"
#include "monitor/Deadline.h"
#include "monitor/MonitorCommands.h"
#include "support/ManualClock.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

using namespace std::chrono_literals;

const std::string goodVersion = checked("3035304131");
const std::string goodID = checked("44454D4F31000000000000,05.00\r\n");

class MonitorTransportTest : public testing::Test {
protected:
    void SetUp() override { // the first query of all only probes
        std::ignore = commands.getBPMVersion();
        clock.advance(MonitorTransport::slowestAnswer + 1ms); // nothing is waited for any more
        port.written.clear();
        port.reads = 0;
        begin = clock.now();
    }
    [[nodiscard]] std::chrono::microseconds elapsed() const { return clock.now() - begin; }
    MonitorResult version() { return outcome(commands.getBPMVersion()); }

    ScriptedPort port;
    ManualClock clock;
    MonitorTransport transport{port, clock};
    MonitorCommands commands{transport};
    WallTime begin;
};

TEST(Deadline, PassesAfterItsTimeAndStartsAnewWhereTheClockIsSetBack) {
    ManualClock clock;
    Deadline deadline(clock, 2s);
    const auto passes = [&](std::chrono::microseconds later) {
        clock.advance(later);
        return deadline.passed();
    };
    EXPECT_FALSE(passes(2s));
    EXPECT_FALSE(passes(-1s)) << "a clock that is only corrected";
    EXPECT_TRUE(passes(1s + 1us));
    EXPECT_FALSE(passes(-1h));
    EXPECT_FALSE(passes(2s));
    EXPECT_TRUE(passes(1us));
    deadline.restart();
    EXPECT_FALSE(passes(2s));
    EXPECT_TRUE(passes(1us));
}

TEST_F(MonitorTransportTest, ReplyIsTheSameWhateverItsSplit) {
    for (std::size_t size = 1; size <= reportCapacity; ++size) {
        port.answers = {reply(goodID, size), reply(goodVersion, size)};
        EXPECT_EQ(commands.getBPMID().value_or("failed"), "DEMO1") << size;
        EXPECT_EQ(commands.getBPMVersion().value_or("failed"), goodVersion) << size;
    }
}

TEST_F(MonitorTransportTest, OneGoodReplySpoiledOnce) {
    struct Case {
        const char* name;
        std::function<void(std::vector<Report>&)> spoil;
        MonitorResult result;
    };
    const auto with = [](const std::string& text) {
        return [text](std::vector<Report>& reports) { reports = reply(checked(text), 5); };
    };
    const Case cases[] = {
        {"nothing", [](auto&) {}, MonitorResult::success},
        {"refused", [](auto& r) { r[0][1] = 0x15; }, MonitorResult::noAcknowledgement},
        {"report without data", [](auto& r) { r[0] = {0x0F}; }, MonitorResult::noAcknowledgement},
        {"check field", [](auto& r) { r.back().back() ^= 1; }, MonitorResult::badCheckField},
        {"content", [](auto& r) { r[1][2] ^= 1; }, MonitorResult::badCheckField},
        {"one too many",
         [](auto& r) {
             r.back()[0] = 0x54;
             r.back().push_back('0');
         },
         MonitorResult::badCheckField},
        {"prefix", with("3035314131"), MonitorResult::badFixedContent},
        {"suffix", with("3035304132"), MonitorResult::badFixedContent},
        {"half", [](auto& r) { r.pop_back(); }, MonitorResult::timeOut},
        {"count beyond the report",
         [](auto& r) {
             r.back() = {0x0F, '4'};
         },
         MonitorResult::timeOut},
        {"nothing at all", [](auto& r) { r.clear(); }, MonitorResult::timeOut},
    };
    for (const Case& sample : cases) {
        std::vector<Report> reports = reply(goodVersion, 5);
        sample.spoil(reports);
        port.answers = {reports};
        EXPECT_EQ(version(), sample.result) << sample.name;
    }
    port.answers = {reply(checked("44454D4F31000000000000,05.01\r\n"))};
    EXPECT_EQ(outcome(commands.getBPMID()), MonitorResult::badFixedContent);
}

TEST_F(MonitorTransportTest, FirstQueryAfterAFailedOpenOnlyProbes) {
    for (const auto& [opening, result] : {std::pair{PortOpen::absent, MonitorResult::noDevice},
                                          {PortOpen::denied, MonitorResult::accessDenied}}) {
        port.failWrites = true;
        EXPECT_EQ(version(), MonitorResult::writeFailed);
        port.failWrites = false;
        port.opening = opening;
        EXPECT_EQ(version(), result);
        port.opening = PortOpen::opened;
        port.reads = 0;
        begin = clock.now();
        EXPECT_EQ(version(), MonitorResult::timeOut);
        EXPECT_EQ(port.reads, 1);
        EXPECT_EQ(elapsed(), MonitorTransport::iSleepTime);
        port.queued.assign({{0x02, 0x06, 'X'}}); // what the probe asked for arrives too late
        port.answers = {reply(goodVersion)};
        EXPECT_EQ(version(), MonitorResult::success);
    }
}

TEST_F(MonitorTransportTest, LateAnswerIsNotTakenForTheNextOne) {
    port.answers = {reply(goodVersion), reply(goodVersion), reply(goodVersion), reply(goodVersion)};
    EXPECT_EQ(version(), MonitorResult::success);
    for (const int late : {3, 4, 5}) { // a device's queue may read as empty before it does not
        port.reads = 0;
        port.onRead = [this, late] {
            if (port.reads == late || (port.reads == 1 && late > 4))
                port.queued.push_front({0x02, 0x06, 'X'});
        };
        EXPECT_EQ(version(), MonitorResult::success);
    }
}

TEST_F(MonitorTransportTest, LateAnswerIsWaitedForOnlyUntilItIsOver) {
    EXPECT_EQ(outcome(commands.getBPMID()), MonitorResult::timeOut);
    const auto late = reply(goodID, 5);
    port.onRead = [this, late, next = 0U]() mutable {
        if (next < late.size() && elapsed() >= 90ms * next) port.queued.push_back(late[next++]);
    };
    port.answers = {reply(goodVersion)};
    begin = clock.now();
    EXPECT_EQ(version(), MonitorResult::success);
    EXPECT_NEAR(seconds(elapsed()), 0.09 * static_cast<double>(late.size() - 1) + 0.1, 0.02);
}

TEST_F(MonitorTransportTest, NoLateAnswerIsWaitedForBehindARefusal) {
    port.answers = {reportsOf("\x15", 1), reply(goodVersion)};
    EXPECT_EQ(version(), MonitorResult::noAcknowledgement);
    begin = clock.now();
    EXPECT_EQ(version(), MonitorResult::success);
    EXPECT_LT(elapsed(), 50ms);
}

TEST_F(MonitorTransportTest, StaleHandleIsReplacedAndALiveOneKept) {
    port.answers = {reply(goodVersion), reply(goodVersion), reply(goodVersion)};
    EXPECT_EQ(version(), MonitorResult::success);
    EXPECT_EQ(port.opens, 1);
    port.failReads = true; // pulled while nothing was asked
    port.opening = PortOpen::absent;
    EXPECT_EQ(version(), MonitorResult::noDevice);
    EXPECT_EQ(port.opens, 2);
}

TEST_F(MonitorTransportTest, ReadErrorEndsTheWait) {
    port.onRead = [this] { port.failReads = !port.written.empty(); };
    EXPECT_EQ(version(), MonitorResult::readFailed);
}

TEST_F(MonitorTransportTest, WaitsEndInTime) {
    EXPECT_EQ(outcome(commands.getBPMID()), MonitorResult::timeOut); // one second without a report
    EXPECT_NEAR(seconds(elapsed()), 1, 0.005);
    EXPECT_EQ(outcome(commands.getBPMDate()), MonitorResult::timeOut);
    EXPECT_NEAR(seconds(elapsed()), 2.5 + 1, 0.01) << "no command before a late answer can be over";
    clock.advance(MonitorTransport::slowestAnswer);
    begin = clock.now();
    EXPECT_EQ(version(), MonitorResult::timeOut); // some take long to begin with this one
    EXPECT_NEAR(seconds(elapsed()), 2.5, 0.005);
    port.written.clear();

    port.onRead = [this] { // a report without data, often enough never to be silent
        if (elapsed() / 900ms > (elapsed() - MonitorTransport::iSleepTime) / 900ms)
            port.queued.push_back({0x00, 0x06});
    };
    const auto expectTimeOut = [this](const auto& ask, double longest) {
        begin = clock.now();
        EXPECT_EQ(ask(), MonitorResult::timeOut);
        EXPECT_NEAR(seconds(elapsed()), longest, 0.005);
    };
    expectTimeOut([this] { return version(); }, 12);
    expectTimeOut([this] { return outcome(commands.getBPMID()); }, 24);
    expectTimeOut([this] { return outcome(commands.getBPMDate()); }, 66);
    port.onRead = [] {};
    expectTimeOut([this] { return commands.sendID("A", false); }, 4);
    EXPECT_EQ(port.written.size(), 4U); // command frames only
    Deadline deadline(clock, 1s);
    clock.advance(1s);
    EXPECT_FALSE(deadline.passed());
    clock.advance(1us);
    EXPECT_TRUE(deadline.passed());
}

TEST_F(MonitorTransportTest, EachSilenceIsToldFromItsThirdSecondOn) {
    port.onRead = [this, isSent = false]() mutable {
        if (elapsed() >= 4500ms && !std::exchange(isSent, true)) port.queued.push_back({0x01, '0'});
    };
    std::vector<std::chrono::seconds> lefts;
    const auto gathered = transport.gather(
        {.wanted = 2, .limit = 9400ms, .acknowledged = false, .onWait = [&](std::chrono::seconds left) {
             lefts.push_back(left);
         }});
    EXPECT_FALSE(gathered);
    EXPECT_EQ(lefts, (std::vector<std::chrono::seconds>{7s, 6s, 2s, 1s})) << "at 3, 4, 4.5 + 3 and 4.5 + 4 s";
}

TEST_F(MonitorTransportTest, ClockThatIsSetBackDoesNotMakeAWaitLast) {
    const std::pair<std::chrono::milliseconds, double> cases[] = {{24h, 1.5}, {1100ms, 1.5}, {900ms, 1.9}};
    for (const auto& [step, longest] : cases) { // a step of a second at most is waited for
        port.onRead = [this, step = step, reads = 0]() mutable {
            if (++reads == 500) clock.advance(-step);
        };
        const auto before = clock.slept();
        EXPECT_EQ(outcome(commands.getBPMID()), MonitorResult::timeOut);
        EXPECT_NEAR(seconds(clock.slept() - before), longest, 0.005);
        clock.advance(48h);
    }
    begin = clock.now();
    port.onRead = [this, reads = 0]() mutable {
        if (++reads == 500) clock.advance(-24h);
    };
    transport.clear_buffer(3s);
    EXPECT_LT(elapsed() + 24h, 3600ms);
}

TEST_F(MonitorTransportTest, InterruptEndsEveryWaitAtOnce) {
    port.onRead = [this, reads = 0]() mutable {
        if (++reads == 10) transport.interrupt();
    };
    EXPECT_EQ(version(), MonitorResult::interrupted);
    EXPECT_LE(elapsed(), 12ms);
    const int reads = port.reads;
    EXPECT_EQ(version(), MonitorResult::interrupted);
    EXPECT_EQ(commands.setBPMDate("20190322140509"), MonitorResult::interrupted);
    transport.clear_buffer(3s);
    EXPECT_EQ(port.reads, reads);
    transport.resume();
    port.answers = {reply(goodVersion)};
    EXPECT_EQ(version(), MonitorResult::success);
}

TEST_F(MonitorTransportTest, FramesFollowTheirAcknowledgement) {
    port.answers = {reply(""), reportsOf("\x15", 1), reply("")};
    EXPECT_EQ(commands.sendID("AZ", true), MonitorResult::success);
    EXPECT_EQ(port.written.size(), 11U);
    EXPECT_NEAR(seconds(elapsed()), 1, 0.01);
    EXPECT_EQ(port.written[1], (Report{0xFF, 0xF7, '0', '0', '0', '0', '0', '0', '0'}));
    EXPECT_EQ(commands.sendID("AZ", true), MonitorResult::noAcknowledgement);
    EXPECT_EQ(port.written.size(), 12U);
    EXPECT_EQ(commands.setBPMDate("20190322140509"), MonitorResult::success);
    EXPECT_EQ(port.written.size(), 25U);

    port.written.clear();
    port.answers = {reply("")};
    port.onWrite = [this] {
        if (port.written.size() == 3) transport.interrupt();
    };
    EXPECT_EQ(commands.sendID("AZ", true), MonitorResult::success);
    EXPECT_EQ(port.written.size(), 11U) << "a frame once begun is finished";
    transport.resume();
    port.answers = {reply("")};
    port.onWrite = [this] { port.failWrites = port.written.size() == 13; };
    begin = clock.now();
    EXPECT_EQ(commands.sendID("AZ", true), MonitorResult::success);
    EXPECT_EQ(port.written.size(), 13U) << "one that cannot be written goes no further";
    EXPECT_LT(elapsed(), 300ms);
}

} // namespace
} // namespace zel

#include "Outcome.h"
#include "monitor/BPMModel.h"
#include "monitor/SimulatedMonitor.h"
#include "monitor/SimulatedMonitorPlan.h"
#include "support/ManualClock.h"

#include <gtest/gtest.h>

#include <optional>

namespace zel {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = SimulatedFault::Kind;

/// The exchange of a session that a fault befalls: which question, and how often it is asked before it.
struct Exchange {
    const char* name;
    Command command;
    int before;
    int reports;                     ///< of its answer
    std::chrono::milliseconds delay; ///< of an answer that is too late
};
constexpr Exchange exchanges[] = {
    {"model", Command::version, 2, 3, 4s},     {"ID", Command::id, 0, 7, 1500ms},
    {"clock", Command::date, 0, 15, 1500ms},   {"count", Command::records, 0, 26, 30s},
    {"records", Command::records, 1, 26, 30s},
};

struct FaultKind {
    const char* name;
    Kind kind;
};
constexpr FaultKind kinds[] = {
    {"unplug", Kind::unplug},
    {"silence", Kind::halfAnswer},
    {"wrong byte", Kind::wrongByte},
    {"surplus byte", Kind::surplusByte},
    {"late answer", Kind::late},
    {"read error", Kind::readError},
    {"write error", Kind::writeError},
    {"wrong acknowledgement", Kind::wrongAcknowledgement},
    {"wrong check field", Kind::badCheckField},
};

/// What a session with a monitor got out of it; nothing of what failed.
struct Session {
    std::optional<QString> ID;
    std::optional<int> count;
    std::optional<std::vector<ReadingModel>> readings;
    std::optional<double> secondsBehind; ///< the monitor's clock

    Session(BPMModel& model, const Clock& clock) {
        for (int polls = 0; !model.checkIsConnected() && polls < 2; ++polls) {
        }
        if (const auto read = model.getBPMID()) ID = *read;
        if (const auto read = model.readBPMDate()) secondsBehind = seconds(clock.now() - *read);
        if (const auto read = model.getBPMCycleDataCount()) count = *read;
        if (const auto read = model.getBPMCycleData([](int, int) {})) readings = *read;
    }
    [[nodiscard]] bool isWhole() const { return ID && count && readings && secondsBehind; }
};

class FaultTest : public testing::Test {
protected:
    static SimulatedMonitorPlan planWith(const Exchange& exchange, Kind kind, int report) {
        SimulatedMonitorPlan plan{.ID = "M1", .reportSizes = {5}};
        for (int i = 0; i < 4; ++i)
            plan.records.push_back(
                encode({.time = u"261101070%1"_s.arg(i), .flag = 1, .sys = 120 + i, .dia = 80, .pulse = 60}));
        if (exchange.before > 0) // no fault at all
            plan.faults.push_back(
                {.kind = Kind::late, .command = exchange.command, .times = exchange.before, .delay = 1ms});
        plan.faults.push_back({.kind = kind,
                               .command = exchange.command,
                               .times = 1,
                               .afterReports = report,
                               .delay = exchange.delay,
                               .replugAfterOpens = 1});
        return plan;
    }
    /// Nothing that a session got may be wrong, whatever befell it.
    static void expectRight(const Session& session) {
        EXPECT_EQ(session.ID.value_or(u"M1"_s), u"M1"_s);
        EXPECT_EQ(session.count.value_or(4), 4);
        EXPECT_NEAR(session.secondsBehind.value_or(0), 0, 3);
        if (!session.readings) return;
        ASSERT_EQ(session.readings->size(), 4U);
        for (unsigned i = 0; i < 4; ++i) {
            EXPECT_EQ((*session.readings)[i].sys, 120 + i);
            EXPECT_EQ((*session.readings)[i].Arrhythmia, 5U) << "the model was known";
        }
    }

    ManualClock clock;
};

TEST_F(FaultTest, NoFaultGivesAWrongValueAndTheNextSessionIsWhole) {
    for (const Exchange& exchange : exchanges) {
        for (const auto& [name, kind] : kinds) {
            for (int report = 0; report < exchange.reports; ++report) {
                SCOPED_TRACE(testing::Message() << name << ", report " << report << " of " << exchange.name);
                SimulatedMonitor port(planWith(exchange, kind, report), clock);
                BPMModel model(port, clock);
                std::ignore = model.checkIsConnected(); // the probe
                expectRight(Session(model, clock));
                clock.advance(30s);
                for (int polls = 0; !model.checkIsConnected() && polls < 3; ++polls)
                    clock.advance(2s);
                const Session next(model, clock);
                EXPECT_TRUE(next.isWhole());
                expectRight(next);
            }
        }
    }
}

TEST_F(FaultTest, AWaitInWhichNothingComesIsTold) {
    const struct {
        const char* what;
        Command silent;
        std::chrono::seconds first; ///< that may be left when it is first told
        std::size_t told;           ///< how often
    } cases[] = {
        {"no readings", Command::records, 21s + (3 + 48 + 3 + 72 + 3) * 1s, 22 + 46 + 70},
        {"no model", Command::version, 15s, 3},
    };
    for (const auto& [what, silent, first, told] : cases) {
        SimulatedMonitorPlan plan;
        plan.faults = {{.kind = Kind::late, .command = Command::version, .times = 2, .delay = 1ms},
                       {.kind = Kind::noAnswer, .command = silent}};
        SimulatedMonitor port(plan, clock);
        BPMModel model(port, clock);
        std::ignore = model.checkIsConnected();
        std::ignore = model.checkIsConnected();
        std::vector<std::chrono::seconds> lefts;
        const WallTime begin = clock.now();
        std::optional<WallTime> firstTold;
        std::ignore = model.getBPMCycleData([](int, int) {},
                                            [&](std::chrono::seconds left) {
                                                firstTold = firstTold.value_or(clock.now());
                                                lefts.push_back(left);
                                            });
        ASSERT_FALSE(lefts.empty()) << what;
        EXPECT_NEAR(seconds(*firstTold - begin), 2.75, 0.3) << what;
        EXPECT_EQ(lefts.front(), first) << what;
        EXPECT_EQ(lefts.size(), told) << what;
        EXPECT_TRUE(std::ranges::is_sorted(lefts, std::greater{})) << what;
        EXPECT_GE(*firstTold + lefts.front() + 1s, clock.now()) << what << ": never longer than was told";
    }
}

} // namespace
} // namespace zel

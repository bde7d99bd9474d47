// Every fault of the monitor at every report of a download of 255 readings. What has to come of it follows
// from the fault alone: one is got over by asking again, where the program asks again; one that befalls every
// try ends the download with nothing stored and nothing emptied; one behind the storing is told with what it
// leaves open. ZEL_REPORT_STRIDE is the distance of the reports tried within a long answer, 1 for each;
// ZEL_FAULT_PAIRS says how many pairs of faults are tried, at random; their seed is printed, and ZEL_SEED
// repeats one.
#include "cli/WireTest.h"
#include "support/FromEnvironment.h"

#include <algorithm>
#include <map>
#include <random>

namespace zel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = SimulatedFault::Kind;
using testing::HasSubstr;

namespace {

constexpr int oneAnswer(int bytes) { return (1 + bytes + 7) / 8; } ///< reports, with the acknowledgement
constexpr int recordsAnswer(int bytes) { return oneAnswer(32) + (bytes + 7) / 8; }

enum class Step { waiting, ID, model, records, erase, IDAgain, countAgain };

/// A question of a download, in their order.
struct Exchange {
    const char* name;
    Step step;
    Command command;
    int before;                        ///< how often the same was asked before
    int reports;                       ///< of its answer
    std::chrono::milliseconds tooLate; ///< for its answer
};
constexpr Exchange exchanges[] = {
    {"probe", Step::waiting, Command::version, 0, oneAnswer(12), 4s},
    {"model, waited for", Step::waiting, Command::version, 1, oneAnswer(12), 4s},
    {"ID", Step::ID, Command::id, 0, oneAnswer(32), 1500ms},
    {"model", Step::model, Command::version, 2, oneAnswer(12), 4s},
    {"records", Step::records, Command::records, 0, recordsAnswer(255 * 32 + 2), 30s},
    {"order to erase", Step::erase, Command::sendID, 0, oneAnswer(0), 5s},
    {"ID afterwards", Step::IDAgain, Command::id, 1, oneAnswer(32), 1500ms},
    {"count afterwards", Step::countAgain, Command::records, 1, recordsAnswer(2), 30s},
};

struct Fault {
    const char* name;
    std::string_view commands; ///< that it can befall
    Kind kind;
    bool hasPlace = false;           ///< among the reports
    bool isLate = false;             ///< so late that it is not waited for
    std::optional<int> awayFor = {}; ///< openings, after an unplug; for ever if none
};
constexpr std::string_view all = "\"#$>";
constexpr std::string_view replies = "\"$>";
constexpr Fault faults[] = {
    {"no answer", all, Kind::noAnswer},
    {"wrong acknowledgement", all, Kind::wrongAcknowledgement},
    {"wrong check field", replies, Kind::badCheckField},
    {"wrong fixed content", "$>", Kind::badFixedContent},
    {"half an answer", replies, Kind::halfAnswer, true},
    {"delay", all, Kind::late, true},
    {"late answer", all, Kind::late, true, true},
    {"wrong byte", replies, Kind::wrongByte, true},
    {"surplus byte", replies, Kind::surplusByte, true},
    {"not taken", "#", Kind::notTaken},
    {"unplugged", all, Kind::unplug, true},
    {"loose cable", all, Kind::unplug, true, false, 0},
    {"unplugged for a moment", all, Kind::unplug, true, false, 1},
    {"read error", all, Kind::readError, true},
    {"write error", all, Kind::writeError},
};

struct Case {
    Exchange at;
    Fault fault;
    int report;
    bool isAlways = false;

    [[nodiscard]] bool breaksLine() const {
        return fault.kind == Kind::unplug || fault.kind == Kind::readError || fault.kind == Kind::writeError;
    }
    [[nodiscard]] bool isForGood() const { return fault.kind == Kind::unplug && !fault.awayFor; }
    [[nodiscard]] bool isBehind() const { return report == at.reports; } ///< the whole answer
    [[nodiscard]] bool isHarmless() const {
        if (fault.kind == Kind::late && !fault.isLate) return true;
        // Behind the header, and behind the records, a report may bring more than was asked for.
        const bool isAtAnEnd = report == oneAnswer(32) - 1 || report == at.reports - 1;
        if (at.step == Step::records) return fault.kind == Kind::surplusByte && isAtAnEnd;
        if (at.step != Step::countAgain) return false;
        // No check field vouches for a count of none, and neither digit of it ends a report.
        return isBehind() || fault.kind == Kind::wrongByte || fault.kind == Kind::badCheckField
               || fault.kind == Kind::surplusByte;
    }
    [[nodiscard]] SimulatedFault simulated() const {
        return {.kind = fault.kind,
                .command = at.command,
                .times = isAlways ? std::nullopt : std::optional(1),
                .afterReports = report,
                .delay = fault.isLate ? at.tooLate : 400ms,
                .replugAfterOpens = fault.awayFor};
    }
};

enum class Ending {
    complete,   ///< stored, and the monitor emptied
    refused,    ///< nothing stored, nothing emptied
    notEmptied, ///< stored, and told that the monitor is not emptied
    notSeen,    ///< stored, and told that nobody knows about the monitor
    either,     ///< any of them, as long as it is told truly
};

Ending expected(const Case& c) {
    if (c.isHarmless()) return Ending::complete;
    // The first answer may come while the last one is awaited.
    if (c.fault.isLate && (c.isAlways || c.at.step == Step::countAgain)) return Ending::either;
    const bool isLasting = c.isAlways || c.isForGood();
    switch (c.at.step) {
    case Step::ID: return isLasting || !c.isBehind() ? Ending::refused : Ending::complete; // asked once
    case Step::waiting:
        if (c.at.before == 1 && c.isBehind() && c.fault.awayFor == 1) return Ending::refused; // no ID is read
        [[fallthrough]];
    case Step::model:
    case Step::records: return isLasting ? Ending::refused : Ending::complete;
    case Step::erase: return c.isBehind() && c.breaksLine() ? Ending::notSeen : Ending::notEmptied;
    case Step::IDAgain:
    case Step::countAgain: return isLasting || c.breaksLine() ? Ending::notSeen : Ending::complete;
    }
    return Ending::either;
}

/// Of three.
int expectedFailedTries(const Case& c) {
    const bool befallsTries =
        c.at.step == Step::model || c.at.step == Step::records || (c.at.step == Step::ID && c.isBehind());
    if (c.isHarmless() || !befallsTries) return 0;
    if (c.isAlways || c.isForGood()) return 3;
    if (c.at.step == Step::ID) return c.fault.awayFor.value_or(0);
    if (c.at.step == Step::model && c.isBehind()) return 1; // the records are asked of what was opened anew
    const bool isSilence =
        c.fault.kind == Kind::noAnswer || c.fault.kind == Kind::halfAnswer || c.fault.isLate;
    if (c.at.step == Step::model && isSilence) return 0; // asked twice in a try
    return 1 + c.fault.awayFor.value_or(0);
}

class WireFaultTest : public WireTest {
protected:
    static SimulatedMonitorPlan planWith(std::vector<Case> cases) {
        SimulatedMonitorPlan plan = fullMonitor();
        std::ranges::stable_sort(cases, {}, [](const Case& c) { return c.at.before; });
        std::map<Command, int> asked;
        for (const Case& c : cases) {
            int& before = asked[c.at.command];
            if (before < c.at.before) // a delay of none is no fault
                plan.faults.push_back(
                    {.kind = Kind::late, .command = c.at.command, .times = c.at.before - before});
            before = c.at.before + 1;
            plan.faults.push_back(c.simulated());
        }
        return plan;
    }

    void expectNotHalfway(const Wire& wire) const {
        EXPECT_TRUE(isStored() || isUntouched());
        EXPECT_EQ(wire.held(), isStored() && wire.held() == 0 ? 0U : 255U) << "erased too early";
    }
    /// Whatever the ending is, it is told as it is.
    void expectTrue(const Outcome& outcome, const Wire& wire) const {
        expectNotHalfway(wire);
        const bool isEmptied = wire.held() == 0;
        EXPECT_EQ(outcome.out, isStored() ? "downloaded: 255\nnew: 255\n" : "");
        EXPECT_EQ(outcome.status == 0, isStored() && isEmptied && !tellsOf(outcome, "could not be seen"));
        EXPECT_EQ(tellsOf(outcome, "safely stored"), isStored() && outcome.status != 0);
    }
    static bool tellsOf(const Outcome& outcome, const char* what) {
        return outcome.err.find(what) != std::string::npos;
    }

    void expectEnding(Ending ending, const Outcome& outcome) const {
        switch (ending) {
        case Ending::complete: EXPECT_EQ(outcome.status, 0) << outcome.err; break;
        case Ending::refused: EXPECT_TRUE(isUntouched()) << outcome.err; break;
        case Ending::notEmptied: EXPECT_THAT(outcome.err, HasSubstr("could not be erased afterwards")); break;
        case Ending::notSeen: EXPECT_THAT(outcome.err, HasSubstr("could not be seen")); break;
        case Ending::either: break;
        }
    }

    void expectNextIsWhole(Wire& wire) {
        wire.plug();
        clock.advance(60s);
        EXPECT_EQ(download().outcome.status, 0);
        EXPECT_TRUE(isStored());
        EXPECT_EQ(wire.held(), 0U);
    }

    void tryOne(const Case& c) {
        SCOPED_TRACE(testing::Message() << c.fault.name << (c.isAlways ? " always, " : ", ") << c.at.name
                                        << ", report " << c.report << " of " << c.at.reports);
        Wire& wire = attach(planWith({c}));
        const auto [outcome, took, warnings] = download();
        longest = std::max(longest, took);
        ++tried;
        const Ending ending = expected(c);
        expectTrue(outcome, wire);
        expectEnding(ending, outcome);
        if (ending == Ending::either) return; // an answer that is so late may be taken for the next one's
        EXPECT_EQ(tellsOf(outcome, "could not be erased"),
                  isStored() && wire.held() != 0 && ending != Ending::notSeen);
        const auto failedTries = warnings.filter(u"getBPMCycleData fail at"_s).filter(u"error code"_s).size();
        const int expectedTries = expectedFailedTries(c);
        EXPECT_TRUE(c.fault.isLate || failedTries == expectedTries)
            << failedTries << " rather than " << expectedTries;
        EXPECT_EQ(warnings.contains(u"getBPMCycleData fail at 3 times, give up!\n"_s), expectedTries == 3);
        if (!c.isAlways && c.report % 3 == 0) expectNextIsWhole(wire);
    }

    unsigned tried = 0;
    std::chrono::microseconds longest{0};
};

int stride() { return static_cast<int>(std::max(1U, fromEnvironment("ZEL_REPORT_STRIDE", 211))); }

bool isTried(int report, int reports) {
    const bool isAtHeadersEnd = std::abs(report + 1 - oneAnswer(32)) <= 1;
    return report % stride() == 0 || isAtHeadersEnd || report == reports / 2 || report + 1 >= reports;
}

bool canBefall(const Fault& fault, const Exchange& exchange) {
    return fault.commands.find(static_cast<char>(exchange.command)) != std::string_view::npos;
}

std::vector<Case> randomCases(std::mt19937& random, int count) {
    const auto below = [&](std::size_t end) { return random() % end; };
    std::vector<Case> cases;
    while (static_cast<int>(cases.size()) < count) {
        const Exchange& at = exchanges[below(std::size(exchanges))];
        const Fault& fault = faults[below(std::size(faults))];
        if (canBefall(fault, at))
            cases.push_back({at, fault, static_cast<int>(below(static_cast<std::size_t>(at.reports)))});
    }
    return cases;
}

} // namespace

TEST_F(WireFaultTest, OneIsGotOverAndALastingOneLeavesAllAsItWas) {
    for (const Exchange& exchange : exchanges) {
        for (const Fault& fault : faults) {
            if (!canBefall(fault, exchange)) continue;
            const bool canBeBehind = fault.kind == Kind::unplug || fault.kind == Kind::readError;
            const int end = fault.hasPlace ? exchange.reports + (canBeBehind ? 1 : 0) : 1;
            for (int report = 0; report < end; ++report) {
                if (!isTried(report, exchange.reports)) continue;
                tryOne({exchange, fault, report});
                const bool isTriedAlways = stride() == 1 || !fault.hasPlace || report == exchange.reports / 2;
                if (isTriedAlways && report < exchange.reports) tryOne({exchange, fault, report, true});
            }
        }
    }
    std::printf("%u faults, the longest download took %lld s\n", tried, static_cast<long long>(longest / 1s));
}

TEST_F(WireFaultTest, TwoLeaveFileAndMonitorInOrderAndTheNextDownloadWorks) {
    const unsigned seed = fromEnvironment("ZEL_SEED", std::random_device{}());
    RecordProperty("seed", std::to_string(seed));
    std::printf("ZEL_SEED=%u\n", seed);
    std::mt19937 random(seed);
    const unsigned pairs = fromEnvironment("ZEL_FAULT_PAIRS", 40);
    for (unsigned pair = 0; pair < pairs && !HasFailure(); ++pair) {
        const std::vector<Case> cases = randomCases(random, 2);
        testing::Message what;
        what << "ZEL_SEED=" << seed << ", pair " << pair;
        for (const Case& c : cases)
            what << "; " << c.fault.name << ", " << c.at.name << ", report " << c.report;
        SCOPED_TRACE(what);
        Wire& wire = attach(planWith(cases));
        const Outcome outcome = download().outcome;
        expectTrue(outcome, wire);
        for (int more = 0; more < 2; ++more) { // which the other may befall
            wire.plug();
            download();
            expectNotHalfway(wire);
        }
        expectNextIsWhole(wire);
    }
}

} // namespace zel

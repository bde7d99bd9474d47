#include "Outcome.h"
#include "ScriptedPort.h"
#include "monitor/BPMModel.h"
#include "monitor/ReadingDecoder.h"
#include "support/LogOf.h"
#include "support/ManualClock.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

const std::string record = "1903221405"
                           "0"
                           "000000"
                           "48"
                           "140"
                           "78"
                           "00000000";

std::string header(const std::string& hexCount) {
    return "00" + hexCount + "0000" + "44454D4F31000000000000" + "00";
}

/// A download of \p count records; the header ends a report.
std::vector<Report> download(int count, const std::string& hexCount, std::size_t size = reportCapacity) {
    std::string records;
    for (int i = 0; i < count; ++i)
        records += record;
    const std::string all = checked(header(hexCount) + records);
    std::vector<Report> reports = reply(all.substr(0, 32), size);
    for (Report& report : reportsOf(all.substr(32), size))
        reports.push_back(std::move(report));
    return reports;
}

class DownloadTest : public testing::Test {
protected:
    void SetUp() override {
        begin = clock.now();
        port.versionAnswer = reply(checked("3035304131"));
    }
    [[nodiscard]] std::chrono::microseconds elapsed() const { return clock.now() - begin; }
    MonitorResult tryOnce(int attempt) {
        begin = clock.now();
        return outcome(commands.getBPMCycleData(progress, attempt));
    }

    std::vector<std::pair<int, int>> steps;
    DownloadProgress progress = [this](int total, int done) { steps.emplace_back(total, done); };
    ScriptedPort port;
    ManualClock clock;
    MonitorTransport transport{port, clock};
    MonitorCommands commands{transport};
    BPMModel model{port, clock};
    WallTime begin;
};

TEST_F(DownloadTest, NoneOneAndAllRecords) {
    port.answers = {download(0, "00"), download(1, "01", 1), download(255, "FF")};
    EXPECT_TRUE(model.getBPMCycleData(progress).value().empty());
    EXPECT_EQ(steps, (std::vector<std::pair<int, int>>{{0, 0}}));

    steps.clear();
    const auto one = model.getBPMCycleData(progress).value();
    ASSERT_EQ(one.size(), 1U);
    EXPECT_EQ(one[0].ID, u"DEMO1"_s);
    EXPECT_EQ(one[0].sys, 120U);
    EXPECT_EQ(steps.front(), std::pair(1, 0));
    EXPECT_EQ(steps.back(), std::pair(1, 1));
    EXPECT_TRUE(std::ranges::is_sorted(steps));

    EXPECT_EQ(model.getBPMCycleData(progress).value().size(), 255U);
    EXPECT_EQ(steps.back(), std::pair(255, 255));
}

TEST_F(DownloadTest, LogsItsStepsInTheSameWordsAsEver) {
    auto bad = download(1, "01");
    bad.back().back() ^= 1;
    const auto load = [this] { std::ignore = model.getBPMCycleData(progress); };
    const auto count = [this] { std::ignore = model.getBPMCycleDataCount(); };
    const auto version = [this] {
        port.versionAnswer.reset();
        std::ignore = model.getBPMVersion();
    };
    const struct {
        const char* what;
        std::deque<std::vector<Report>> answers;
        std::function<void()> act;
        const char* lines;
    } cases[] = {
        {"a reading",
         {download(1, "01")},
         load,
         "getBPMCycleData|[data begin]|read bytes iRead 32\n|test log 1|Cycle Data return 64 bytes data:\n|"
         "?initWithUSBData :19032214050000000481407800000000|?readBPMDate DateTime:201903221405 ID:[DEMO1]|"
         "?check fo no date data:201903221405|get Cycle Data -->  OK"},
        {"none", {download(0, "00")}, load, "getBPMCycleData|[data begin]|get Cycle Data -->  no data"},
        {"spoiled",
         {bad, download(0, "00")},
         load,
         "getBPMCycleData|[data begin]|read bytes iRead 32\n|test log 1|!check sum error|"
         "clear buffer for data count:|clear timeout|!getBPMCycleData fail at 1 times, error code:-5\n|"
         "getBPMCycleData|[data begin]|get Cycle Data -->  no data"},
        {"the number of readings",
         {download(1, "01")},
         count,
         "getBPMCycleDataCount|[data begin]|clear buffer for data count:|?clear buffer:|?clear buffer:|"
         "?clear buffer:|clear timeout"},
        {"no number",
         {},
         count,
         "getBPMCycleDataCount|[data begin]|!getBPMCycleDataCount fail at 1 times\n|"
         "getBPMCycleDataCount|[data begin]|!getBPMCycleDataCount fail at 2 times\n|"
         "getBPMCycleDataCount|[data begin]|!getBPMCycleDataCount fail at 3 times\n|"
         "!getBPMCycleDataCount fail at 3 times, give up!\n"},
        {"no clock",
         {},
         [this] { std::ignore = model.readBPMDate(); },
         "!getBPMCycleData fail at 1 times\n|!getBPMCycleData fail at 2 times\n|"
         "!getBPMCycleData fail at 3 times\n|!getBPMCycleData fail at 3 times, give up!\n"},
        {"an ID",
         {reply("")},
         [this] { std::ignore = model.sendID(u"A Z"_s, false); },
         "?sendID A Z|sendID result:0"},
        {"an ID that is not taken",
         {},
         [this] { std::ignore = model.sendID(u"A Z"_s, false); },
         "?sendID A Z|sendID result:-7"},
        {"a wrong check field",
         {reply("303530413100")},
         version,
         "!checkSum error res2:F  res1:0  daat2:7  data1:0\n"},
        {"no room for one",
         {reply("3")},
         [this] { std::ignore = transport.getBPMData(Command::version, 1, 1); },
         "!checkSum error : data length error"},
        {"no more than a wrong one",
         {reply("11")},
         [this] { std::ignore = transport.getBPMData(Command::version, 2, 1); },
         "!checkSum error res2:0  res1:1  daat2:0  data1:1\n"},
        {"a record without a date",
         {},
         [] { std::ignore = initWithUSBData("19000000000", u"A"_s, {}); },
         "?initWithUSBData :19000000000|?readBPMDate DateTime:201900000000 ID:[A]|"
         "?check fo no date data:201900000000|?check fo no date data.. nildate 1:|"
         "?check fo no date data.. nildate 2:200001010000"},
        {"a dead handle",
         {},
         [this] { port.failReads = true, transport.clear_buffer(3s); },
         "clear end of read"},
    };
    for (const auto& each : cases) {
        port.answers = each.answers;
        EXPECT_EQ(logOf(each.act), each.lines) << each.what;
    }
}

TEST_F(DownloadTest, DeadlinesGrowWithTheAttemptAndTheSize) {
    for (int attempt = 1; attempt <= 3; ++attempt) {
        EXPECT_EQ(tryOnce(attempt), MonitorResult::timeOut); // no header: 24 s, then 3 s of draining
        EXPECT_NEAR(seconds(elapsed()), attempt * 24 + 3, 0.01);
        port.answers = {download(255, "FF")};
        port.answers[0].resize(3); // the header only: (8162 div 300 + 1) x 2 s
        EXPECT_EQ(tryOnce(attempt), MonitorResult::timeOut);
        EXPECT_NEAR(seconds(elapsed()), attempt * 56 + 3, 0.01);
    }
}

TEST_F(DownloadTest, OneGoodDownloadSpoiledOnce) {
    struct Case {
        const char* name;
        std::function<void(std::vector<Report>&)> spoil;
        MonitorResult result;
        int shown; ///< how many records the progress got to
    };
    const auto all = checked(header("03") + record + record + record);
    std::string april = record; // whose first five bytes add up to nothing in a check field
    april.replace(0, 5, "19042");
    const auto aprils = checked(header("03") + april + april + april);
    const auto two = checked(header("02") + record + record) + record + "00";
    const Case cases[] = {
        {"nothing", [](auto&) {}, MonitorResult::success, 3},
        {"surplus in the last report",
         [](auto& r) {
             r.back().insert(r.back().end(), {'0', '0'});
             r.back()[0] += 2;
         },
         MonitorResult::success, 3},
        {"refused", [](auto& r) { r[0][1] = 0x15; }, MonitorResult::noAcknowledgement, 0},
        {"check field", [](auto& r) { r.back().back() ^= 1; }, MonitorResult::badCheckField, 3},
        {"0x00 in a record", [](auto& r) { r[5][3] = 0; }, MonitorResult::badCheckField, 3},
        {"records run over the header's end", [&](auto& r) { r = reply(all, 14); },
         MonitorResult::badCheckField, 3},
        {"records run over, the check field right by chance without them",
         [&](auto& r) {
             r = reply(aprils.substr(0, 30));
             for (Report& report : reportsOf(aprils.substr(30), 7))
                 r.push_back(report);
         },
         MonitorResult::badCheckField, 3},
        {"more records announced than come", [](auto& r) { r[0][5] = 'F'; }, MonitorResult::timeOut, 3},
        {"no hexadecimal digits", [](auto& r) { r[0][4] = 'z'; }, MonitorResult::badFixedContent, 0},
        {"fewer records announced than come, the check field right by chance",
         [&](auto& r) {
             r = reply(two.substr(0, 32));
             for (Report& report : reportsOf(two.substr(32), reportCapacity))
                 r.push_back(report);
         },
         MonitorResult::badCheckField, 2},
        {"none announced, three come", [](auto& r) { r[0][5] = '0'; }, MonitorResult::badCheckField, 0},
        {"none announced, wrong check field",
         [](auto& r) {
             r = download(0, "00");
             r.back().back() ^= 1;
         },
         MonitorResult::badCheckField, 0},
        {"none announced, no check field",
         [](auto& r) {
             r = download(0, "00");
             r.pop_back();
         },
         MonitorResult::success, 0},
        {"ends early", [](auto& r) { r.pop_back(); }, MonitorResult::timeOut, 2},
    };
    for (const Case& sample : cases) {
        std::vector<Report> reports = download(3, "03");
        sample.spoil(reports);
        port.answers = {reports};
        steps = {{0, 0}};
        EXPECT_EQ(tryOnce(1), sample.result) << sample.name;
        EXPECT_EQ(steps.back().second, sample.shown) << sample.name;
        EXPECT_EQ(elapsed() > 3s, sample.result != MonitorResult::success) << sample.name;
    }
    port.answers = {download(3, "03")};
    port.onRead = [this] { port.failReads = port.queued.empty() && !port.written.empty(); };
    port.answers[0].resize(4);
    EXPECT_EQ(tryOnce(1), MonitorResult::readFailed);
    EXPECT_LT(elapsed(), 1s); // there is nothing to drain on a dead handle
}

TEST_F(DownloadTest, CountWaitsForTheRecordsThatFollow) {
    const struct {
        int count;
        const char* hexCount;
        double wait; ///< a second for each 300 bytes begun, 20 at most
    } cases[] = {{3, "03", 1}, {178, "B2", 19}, {188, "BC", 20}, {255, "FF", 20}, {-1, "zF", 20}};
    for (const auto& [count, hexCount, wait] : cases) {
        port.answers = {download(std::abs(count), hexCount)};
        begin = clock.now();
        EXPECT_EQ(commands.getBPMCycleDataCount().value_or(-1), count);
        EXPECT_NEAR(seconds(elapsed()), wait, 0.02) << hexCount;
        EXPECT_TRUE(port.queued.empty());
    }
    begin = clock.now();
    EXPECT_EQ(outcome(commands.getBPMCycleDataCount()), MonitorResult::timeOut);
    EXPECT_NEAR(seconds(elapsed()), 24, 0.02);
    port.answers = {download(3, "03")};
    port.onRead = [this] {
        if (port.queued.size() == 1) transport.interrupt();
    };
    EXPECT_EQ(outcome(commands.getBPMCycleDataCount()), MonitorResult::interrupted);
    transport.resume();
    port.onRead = [] {};
    for (const char* hexCount : {"00", "02"}) { // three come
        port.answers = {download(3, hexCount)};
        EXPECT_EQ(outcome(commands.getBPMCycleDataCount()), MonitorResult::badCheckField) << hexCount;
    }
    for (const std::size_t surplus : {reportCapacity, reportCapacity + 1}) { // a report too many, and more
        port.answers = {download(3, "03")};
        for (Report& report : reportsOf(std::string(surplus, '0'), reportCapacity))
            port.answers[0].push_back(std::move(report));
        EXPECT_EQ(outcome(commands.getBPMCycleDataCount()),
                  surplus > reportCapacity ? MonitorResult::badCheckField : MonitorResult::success);
    }
}

TEST_F(DownloadTest, AsksForTheModelFirstAndFailsWithoutIt) {
    // A record's flag 0x01 is a finding, on the models that detect one.
    const std::string found = record.substr(0, 10) + '\x01' + record.substr(11);
    const std::string all = checked(header("01") + found);
    const auto answer = [&] {
        auto reports = reply(all.substr(0, 32));
        for (Report& report : reportsOf(all.substr(32), reportCapacity))
            reports.push_back(std::move(report));
        return reports;
    };
    port.opening = PortOpen::absent;
    EXPECT_FALSE(model.checkIsConnected());
    port.opening = PortOpen::opened;
    port.answers = {answer()};
    const auto readings = model.getBPMCycleData(progress).value();
    ASSERT_EQ(readings.size(), 1U);
    EXPECT_EQ(readings[0].Arrhythmia, 5U) << "though the poll before it found no monitor";

    port.versionAnswer.reset();
    port.answers = {{}, {}, {}, {}, {}, {}, answer()};
    EXPECT_EQ(outcome(model.getBPMCycleData(progress)), MonitorResult::timeOut);
    EXPECT_EQ(port.answers.size(), 1U) << "the readings were never asked for";
}

TEST_F(DownloadTest, ThreeTriesAndNoMore) {
    auto bad = download(1, "01");
    bad.back().back() ^= 1;
    port.answers = {bad, bad, download(1, "01")};
    EXPECT_EQ(model.getBPMCycleData(progress).value().size(), 1U);
    port.answers = {bad, bad, bad, download(1, "01")};
    const auto failed = model.getBPMCycleData(progress);
    EXPECT_EQ(failed.error(), MonitorResult::badCheckField);
    EXPECT_EQ(port.answers.size(), 1U);
    port.answers = {{}, {}, {}};
    begin = clock.now();
    EXPECT_FALSE(model.getBPMCycleData(progress));
    EXPECT_NEAR(seconds(elapsed()), (1 + 2 + 3) * 24 + 3 * 3, 0.03) << "each try has more time";
    port.answers = {bad, bad, download(7, "07")};
    EXPECT_EQ(model.getBPMCycleDataCount().value(), 1); // the count looks at the header only
}

TEST_F(DownloadTest, InterruptedDownloadIsNotTriedAgain) {
    port.answers = {download(255, "FF")};
    port.onRead = [this] {
        if (port.queued.size() == 100) model.interrupt();
    };
    EXPECT_EQ(model.getBPMCycleData(progress).error(), MonitorResult::interrupted);
    EXPECT_EQ(port.written.size(), 2U) << "the questions for the model and for the readings";
    EXPECT_LT(elapsed(), 1s);
    model.resume();
    port.answers = {download(1, "01")};
    EXPECT_EQ(model.getBPMCycleData(progress).value().size(), 1U); // the rest of the first one is gone
}

} // namespace
} // namespace zel

#include "Outcome.h"
#include "ScriptedPort.h"
#include "monitor/BPMModel.h"
#include "support/ManualClock.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

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
    void SetUp() override { begin = clock.now(); }
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
    EXPECT_EQ(one[0].ID, QStringLiteral("DEMO1"));
    EXPECT_EQ(one[0].sys, 120U);
    EXPECT_EQ(steps.front(), std::pair(1, 0));
    EXPECT_EQ(steps.back(), std::pair(1, 1));
    EXPECT_TRUE(std::ranges::is_sorted(steps));

    EXPECT_EQ(model.getBPMCycleData(progress).value().size(), 255U);
    EXPECT_EQ(steps.back(), std::pair(255, 255));
}

TEST_F(DownloadTest, LogsItsStepsInTheSameWordsAsEver) {
    port.answers = {download(1, "01"), download(0, "00")};
    EXPECT_EQ(
        logOf([this] {
            std::ignore = model.getBPMCycleData(progress);
            std::ignore = model.getBPMCycleData(progress);
        }),
        "getBPMCycleData|[data begin]|read bytes iRead 32\n|test log 1|Cycle Data return 64 bytes data:\n|"
        "get Cycle Data -->  OK|getBPMCycleData|[data begin]|get Cycle Data -->  no data");
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
    };
    const auto all = checked(header("03") + record + record + record);
    const Case cases[] = {
        {"nothing", [](auto&) {}, MonitorResult::success},
        {"surplus in the last report",
         [](auto& r) {
             r.back().insert(r.back().end(), {'0', '0'});
             r.back()[0] += 2;
         },
         MonitorResult::success},
        {"refused", [](auto& r) { r[0][1] = 0x15; }, MonitorResult::noAcknowledgement},
        {"check field", [](auto& r) { r.back().back() ^= 1; }, MonitorResult::badCheckField},
        {"0x00 in a record", [](auto& r) { r[5][3] = 0; }, MonitorResult::badCheckField},
        {"records run over the header's end", [&](auto& r) { r = reply(all, 7); },
         MonitorResult::badCheckField},
        {"more records announced than come", [](auto& r) { r[0][5] = 'F'; }, MonitorResult::timeOut},
        {"no hexadecimal digits", [](auto& r) { r[0][4] = 'z'; }, MonitorResult::badFixedContent},
        {"ends early", [](auto& r) { r.pop_back(); }, MonitorResult::timeOut},
    };
    for (const Case& sample : cases) {
        std::vector<Report> reports = download(3, "03");
        sample.spoil(reports);
        port.answers = {reports};
        EXPECT_EQ(tryOnce(1), sample.result) << sample.name;
        EXPECT_EQ(elapsed() > 3s, sample.result != MonitorResult::success) << sample.name;
    }
    port.answers = {download(3, "03")};
    port.onRead = [this] { port.failReads = port.queued.empty() && !port.written.empty(); };
    port.answers[0].resize(4);
    EXPECT_EQ(tryOnce(1), MonitorResult::readFailed);
    EXPECT_LT(elapsed(), 1s); // there is nothing to drain on a dead handle
}

TEST_F(DownloadTest, CountWaitsForTheRecordsThatFollow) {
    port.answers = {download(3, "03")};
    EXPECT_EQ(commands.getBPMCycleDataCount().value_or(-1), 3);
    EXPECT_NEAR(seconds(elapsed()), 1, 0.02);
    EXPECT_TRUE(port.queued.empty());
    port.answers = {download(255, "FF")};
    begin = clock.now();
    EXPECT_EQ(commands.getBPMCycleDataCount().value_or(-1), 255);
    EXPECT_NEAR(seconds(elapsed()), 20, 0.02);
    begin = clock.now();
    EXPECT_EQ(outcome(commands.getBPMCycleDataCount()), MonitorResult::timeOut);
    EXPECT_NEAR(seconds(elapsed()), 24, 0.02);
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
    port.answers = {bad, bad, download(7, "07")};
    EXPECT_EQ(model.getBPMCycleDataCount().value(), 1); // the count looks at the header only
}

TEST_F(DownloadTest, InterruptedDownloadIsNotTriedAgain) {
    port.answers = {download(255, "FF")};
    port.onRead = [this] {
        if (port.queued.size() == 100) model.interrupt();
    };
    EXPECT_EQ(model.getBPMCycleData(progress).error(), MonitorResult::interrupted);
    EXPECT_EQ(port.written.size(), 1U);
    EXPECT_LT(elapsed(), 1s);
    model.resume();
    port.answers = {download(1, "01")};
    EXPECT_EQ(model.getBPMCycleData(progress).value().size(), 1U); // the rest of the first one is gone
}

} // namespace
} // namespace zel

#include "monitor/SimulatedMonitor.h"

#include "Outcome.h"
#include "monitor/BPMModel.h"
#include "monitor/SimulatedDevice.h"
#include "monitor/SimulatedMonitorPlan.h"
#include "support/ManualClock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <numeric>

namespace zel {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = SimulatedFault::Kind;

const DownloadProgress noProgress = [](int, int) {};

class SimulatedMonitorTest : public testing::Test {
protected:
    /// A model that has seen the monitor's first, probing query.
    std::unique_ptr<BPMModel> attach(const QByteArray& json) {
        auto plan = readPlan(json);
        EXPECT_TRUE(plan) << plan.error().key.toStdString() << " " << int(plan.error().code);
        port = std::make_unique<SimulatedMonitor>(plan.value_or(SimulatedMonitorPlan{}), clock);
        auto model = std::make_unique<BPMModel>(*port, clock);
        std::ignore = model->checkIsConnected();
        return model;
    }
    std::vector<std::string> reportsTo(Command command) {
        std::ignore = port->open();
        EXPECT_TRUE(port->write(commandFrame(command)));
        std::vector<std::string> reports;
        std::array<std::uint8_t, 256> report{};
        while (port->read(report) > 0)
            reports.push_back(reportPayload(report, false));
        return reports;
    }
    std::string answer(Command command) { // behind its acknowledgement
        const auto reports = reportsTo(command);
        const std::string all = std::accumulate(reports.begin(), reports.end(), std::string{});
        return all.empty() ? all : all.substr(1);
    }

    ManualClock clock;
    std::unique_ptr<SimulatedMonitor> port;
};

TEST_F(SimulatedMonitorTest, AnswersByteForByte) {
    attach(R"({"model": "3A", "id": "AZ", "clockOffsetSeconds": 61, "reportSizes": [1, 4, 15], "records": [
        {"time": "2019-03-22T14:05", "sys": 120, "dia": 83, "pulse": 72, "flag": 2}]})");
    EXPECT_EQ(answer(Command::version), "3035303A3106");
    EXPECT_EQ(answer(Command::id), "415A000000000000000000,05.00\r\n71");
    EXPECT_EQ(answer(Command::date).substr(0, 84),
              "11212620090101"
              "0000011803010007000000000000FF3296F01496FA0A01010101010004000000000000"); // +1 h: Berlin
    const std::string records = "00010000"
                                "415A000000000000000000"
                                "00"
                                "1903221405\x02"
                                "000000"
                                "48"
                                "14C"
                                "78"
                                "00000000";
    EXPECT_EQ(answer(Command::records).substr(0, 64), records);
    EXPECT_TRUE(checkSum(answer(Command::records)));
    EXPECT_EQ(answer(static_cast<Command>('?')), "");
}

TEST_F(SimulatedMonitorTest, ReportThatEndsBeforeItsCommandAsksForNothing) {
    SimulatedDevice device({}, clock);
    const auto whole = commandFrame(Command::version);
    EXPECT_TRUE(device.take(std::span(whole).first(commandPreamble.size())));
    EXPECT_FALSE(device.next());
    EXPECT_TRUE(device.take(whole));
    EXPECT_TRUE(device.next());
}

TEST_F(SimulatedMonitorTest, ReportsAreAsLongAsThePlanSaysAndAsManyAsAFaultLeaves) {
    const struct {
        const char* faults;
        Command command;
        std::vector<std::size_t> lengths;
    } cases[] = {
        {"", Command::version, {5, 5, 3}},
        {"", Command::records, {5, 5, 5, 5, 5, 5, 3, 5, 5, 5, 5, 5, 5, 4}},    // the header ends a report
        {R"({"command": "$", "kind": "halfAnswer"})", Command::id, {5, 5, 5}}, // of seven
        {R"({"command": "$", "kind": "halfAnswer", "afterReports": 1})", Command::id, {5}},
    };
    for (const auto& [faults, command, lengths] : cases) {
        attach(R"({"model": "41", "id": "A", "reportSizes": [5],
                   "records": [{"time": "undated", "sys": 1, "dia": 2, "pulse": 3}], "faults": [)"
               + QByteArray(faults) + "]}");
        std::vector<std::size_t> found;
        std::ranges::transform(reportsTo(command), std::back_inserter(found),
                               [](const std::string& report) { return report.size(); });
        EXPECT_EQ(found, lengths) << static_cast<char>(command) << faults;
    }
}

TEST_F(SimulatedMonitorTest, DownloadsWhatThePlanSaysInEverySplit) {
    for (int size = 1; size <= 15; ++size) {
        const auto model = attach(uR"({"model": "41", "id": "A", "reportSizes": [%1], "records": [
            {"time": "2026-11-01T07:12", "sys": 255, "dia": 1023, "pulse": 0, "flag": "A"},
            {"time": "undated", "sys": 120, "dia": 80, "pulse": 60, "flag": 1},
            {"raw": "1903221405z      4814078000000\u0000\u00ff"}]})"_s.arg(size)
                                      .toUtf8());
        ASSERT_TRUE(model->checkIsConnected());
        const auto readings = model->getBPMCycleData(noProgress).value();
        ASSERT_EQ(readings.size(), 3U);
        EXPECT_EQ(DateToStr(readings[0].ReadingDate, u"yyyy-MM-dd HH:mm"_s), u"2026-11-01 07:12"_s);
        EXPECT_EQ(readings[0].sys, 255U);
        EXPECT_EQ(readings[0].dia, 1023U);
        EXPECT_EQ(readings[0].Arrhythmia, 4U);
        EXPECT_TRUE(isNilReadingDate(readings[1].ReadingDate));
        EXPECT_EQ(readings[1].Arrhythmia, 5U);
        EXPECT_EQ(readings[1].mam, 1U);
        EXPECT_EQ(readings[2].sys, 120U);
    }
}

TEST_F(SimulatedMonitorTest, FrameWithAWrongCheckFieldIsNotTakenOver) {
    const auto model = attach(R"({"model": "41", "id": "OLD"})");
    ASSERT_TRUE(port->write(commandFrame(Command::sendID)));
    std::string frame = idFrame("NEW", true);
    frame.back() ^= 1;
    for (const Report& chunk : dataChunks(frame))
        ASSERT_TRUE(port->write(chunk));
    EXPECT_EQ(model->getBPMID().value(), u"OLD"_s);
}

TEST_F(SimulatedMonitorTest, FaultsShowAsTheirResultCodes) {
    struct Case {
        const char* fault;
        MonitorResult version;
        MonitorResult next; ///< the same question again
    };
    const auto ok = MonitorResult::success;
    const Case cases[] = {
        {R"("kind": "noAnswer", "times": 1)", MonitorResult::timeOut, ok},
        {R"("kind": "wrongAcknowledgement", "times": 1)", MonitorResult::noAcknowledgement, ok},
        {R"("kind": "badCheckField")", MonitorResult::badCheckField, MonitorResult::badCheckField},
        {R"("kind": "badFixedContent", "times": 1)", MonitorResult::badFixedContent, ok},
        {R"("kind": "halfAnswer", "times": 1)", MonitorResult::timeOut, ok},
        {R"("kind": "late", "delayMs": 900)", ok, ok},
        {R"("kind": "late", "delayMs": 1100, "times": 1)", MonitorResult::timeOut, ok},
        {R"("kind": "readError", "afterReports": 1, "times": 1)", MonitorResult::readFailed, ok},
        {R"("kind": "writeError", "times": 1)", MonitorResult::writeFailed, ok},
        {R"("kind": "unplug", "times": 1)", MonitorResult::readFailed, MonitorResult::noDevice},
        {R"("kind": "unplug", "times": 1, "replugAfterOpens": 0)", MonitorResult::readFailed, ok},
        {R"("kind": "unplug", "times": 1, "replugAfterMs": 1)", MonitorResult::readFailed,
         MonitorResult::noDevice},
    };
    for (const auto& [fault, first, second] : cases) {
        const QByteArray plan =
            R"({"model": "41", "id": "A", "reportSizes": [5], "faults": [{"command": "$", )";
        const auto model = attach(plan + fault + "}]}");
        EXPECT_EQ(outcome(model->getBPMID()), first) << fault;
        EXPECT_EQ(outcome(model->getBPMID()), second) << fault;
    }
}

TEST_F(SimulatedMonitorTest, UnplugInTheMiddleOfADownloadAndBack) {
    const auto model = attach(R"({"model": "41", "id": "A", "records": [
        {"time": "undated", "sys": 1, "dia": 2, "pulse": 3}, {"time": "undated", "sys": 1, "dia": 2, "pulse": 3}],
        "faults": [{"command": "\"", "kind": "unplug", "afterReports": 4, "replugAfterOpens": 2, "times": 1},
                   {"command": "open", "kind": "denied", "times": 1}]})");
    EXPECT_EQ(model->lastResult(), MonitorResult::accessDenied);
    EXPECT_EQ(outcome(model->getBPMCycleData(noProgress)), MonitorResult::noDevice);
    EXPECT_EQ(model->getBPMCycleData(noProgress).value().size(), 2U);
}

TEST_F(SimulatedMonitorTest, PlansThatAreNone) {
    using Code = PlanError::Code;
    const auto refusal = [](const QByteArray& json) {
        const auto plan = readPlan(json);
        return plan ? std::pair(QString{}, Code::missing) : std::pair(plan.error().key, plan.error().code);
    };
    const auto expect = [&](const QByteArray& members, const QString& key, Code code) {
        const QByteArray good = R"({"model": "41", "id": "A", )";
        EXPECT_EQ(refusal(good + members + "}"), std::pair(key, code)) << members.data();
    };
    const auto expectMember = [&](const char* good, const char* bad, const QString& key, Code code) {
        const QByteArray record = R"("records": [{"time": "undated", "sys": 1, "dia": 2, "pulse": 3}])";
        expect(QByteArray(record).replace(good, bad), u"records[0]"_s + key, code);
    };
    expectMember("1", "256", u".sys"_s, Code::notWhole);
    expectMember("1", "1.5", u".sys"_s, Code::notWhole);
    expectMember("2", "1024", u".dia"_s, Code::notWhole);
    expectMember(R"("dia": 2, )", "", u".dia"_s, Code::missing);
    expectMember("undated", "2026-13-01T07:12", u".time"_s, Code::notTime);
    expectMember("undated", "1999-11-01T07:12", u".time"_s, Code::notTime);
    expectMember("3", R"(3, "flag": 3)", u".flag"_s, Code::notAllowed);
    expectMember("3", R"(3, "Flag": 2)", u".Flag"_s, Code::unknownKey);
    expect(R"("records": [{"raw": "short"}])", u"records[0].raw"_s, Code::wrongLength);
    expect(R"("records": [{"raw": "1903221405z      481407800000000", "flag": 1}])", u"records[0].flag"_s,
           Code::unknownKey);
    expect(R"("records": [7])", u"records[0]"_s, Code::notObject);
    expect(R"("records": {})", u"records"_s, Code::notList);
    expect(R"("reportSizes": [15, 16])", u"reportSizes[1]"_s, Code::notWhole);
    expect(R"("reportSizes": [])", u"reportSizes[0]"_s, Code::missing);
    expect(R"("clockOffsetSeconds": "1")", u"clockOffsetSeconds"_s, Code::notWhole);
    expect(R"("Id": "A")", u"Id"_s, Code::unknownKey);
    expect(R"("clock": "")", u"clock"_s, Code::notAllowed);
    expect(R"("clock": "x234567890x234567890x234567890x234567890x")", u"clock"_s, Code::wrongLength);

    const auto expectFault = [&](const char* fault, const QString& key, Code code) {
        expect(R"("faults": [{)" + QByteArray(fault) + "}]", u"faults[0]."_s + key, code);
    };
    expectFault(R"("command": ">", "kind": "boom")", u"kind"_s, Code::notAllowed);
    expectFault(R"("command": ">", "kind": "")", u"kind"_s, Code::notAllowed);
    expectFault(R"("command": ">", "kind": "x234567890x234567890x234567890x234567890x")", u"kind"_s,
                Code::wrongLength);
    expectFault(R"("command": "\"", "kind": "badFixedContent")", u"command"_s, Code::notAllowed);
    expectFault(R"("command": "open", "kind": "noAnswer")", u"command"_s, Code::notAllowed);
    expectFault(R"("command": "shut", "kind": "absent")", u"command"_s, Code::notAllowed);
    expectFault(R"("command": "close", "kind": "absent")", u"command"_s, Code::wrongLength);
    expectFault(R"("command": ">", "kind": "noAnswer", "times": 0)", u"times"_s, Code::notWhole);
    expectFault(R"("command": ">", "kind": "noAnswer", "delayMs": 1)", u"delayMs"_s, Code::unknownKey);

    EXPECT_EQ(refusal("{").second, Code::notJson);
    EXPECT_EQ(refusal("[]").second, Code::notObject);
    EXPECT_EQ(refusal("{}"), std::pair(u"model"_s, Code::missing));
    EXPECT_EQ(refusal(R"({"model": "411", "id": "A"})"), std::pair(u"model"_s, Code::wrongLength));
    const auto lengths = [](const QByteArray& json) { return readPlan(json).error().detail; };
    EXPECT_EQ(lengths(R"({"model": "411", "id": "A"})"), u"2"_s);
    EXPECT_EQ(lengths(R"({"model": "41", "id": "TWELVE CHARS"})"), u"0-11"_s);
    EXPECT_EQ(refusal(R"({"model": 41, "id": "A"})"), std::pair(u"model"_s, Code::notText));
    EXPECT_EQ(refusal(R"({"model": "41", "id": "\u20ac"})"), std::pair(u"id"_s, Code::unencodable));
    const QByteArray records = QByteArray(R"({"raw": "short"},)").repeated(256).chopped(1);
    expect(R"("records": [)" + records + "]", u"records"_s, Code::tooMany);
}

TEST_F(SimulatedMonitorTest, PlansReachToTheirLimitsAndNoFurther) {
    struct Case {
        const char* member; ///< with %1 for a number
        qint64 smallest;
        qint64 largest;
    };
    for (const auto& [member, smallest, largest] : {
             Case{R"("clockOffsetSeconds": %1)", -400LL * 24 * 3600, 400LL * 24 * 3600},
             Case{R"("reportSizes": [%1])", 1, 15},
             Case{R"("records": [{"time": "undated", "sys": %1, "dia": 2, "pulse": 3}])", 0, 255},
             Case{R"("records": [{"time": "undated", "sys": 1, "dia": %1, "pulse": 3}])", 0, 1023},
             Case{R"("records": [{"time": "undated", "sys": 1, "dia": 2, "pulse": %1}])", 0, 255},
             Case{R"("records": [{"time": "undated", "sys": 1, "dia": 2, "pulse": 3, "flag": %1}])", 0, 2},
             Case{R"("faults": [{"command": ">", "kind": "noAnswer", "times": %1}])", 1, 1'000'000},
             Case{R"("faults": [{"command": ">", "kind": "unplug", "afterReports": %1}])", 0, 8195},
             Case{R"("faults": [{"command": ">", "kind": "late", "delayMs": %1}])", 1, 3'600'000},
             Case{R"("faults": [{"command": ">", "kind": "unplug", "replugAfterOpens": %1}])", 0, 1'000'000},
             Case{R"("faults": [{"command": ">", "kind": "unplug", "replugAfterMs": %1}])", 0, 3'600'000},
         }) {
        const auto isTaken = [member = member](qint64 number) {
            const QString members = QString::fromLatin1(member).arg(number);
            return readPlan((uR"({"model": "41", "id": "A", )"_s + members + u'}').toUtf8()).has_value();
        };
        EXPECT_TRUE(isTaken(smallest) && isTaken(largest)) << member;
        EXPECT_FALSE(isTaken(smallest - 1) || isTaken(largest + 1)) << member;
    }
    const auto isTaken = [](const QByteArray& key, const QByteArray& value, int times) {
        const QByteArray values = (value + ',').repeated(times).chopped(1);
        return readPlan(R"({"model": "41", "id": "A", ")" + key + "\": [" + values + "]}").has_value();
    };
    const QByteArray fault = R"({"command": ">", "kind": "noAnswer"})";
    EXPECT_TRUE(isTaken("faults", fault, 100) && isTaken("reportSizes", "7", 1000));
    EXPECT_FALSE(isTaken("faults", fault, 101) || isTaken("reportSizes", "7", 1001));
    for (const auto& [flag, good] :
         {std::pair{"\"!\"", true}, {"\"~\"", true}, {"\" \"", false}, {"\"ab\"", false}}) {
        const QByteArray record =
            QByteArray(R"({"time": "undated", "sys": 1, "dia": 2, "pulse": 3, "flag": )") + flag + '}';
        EXPECT_EQ(isTaken("records", record, 1), good) << flag;
    }
}

TEST_F(SimulatedMonitorTest, SettingTheClockLeavesTheSettingsBehindIt) {
    const auto model = attach(R"({"model": "41", "id": "A", "clock": "unset"})");
    const auto settings = [this] {
        const std::string reply = answer(Command::date);
        return reply.substr(14, reply.size() - 14 - checkFieldLength);
    };
    const std::string before = settings();
    EXPECT_EQ(model->setBPMDate(), MonitorResult::success);
    EXPECT_EQ(settings(), before);
}

TEST_F(SimulatedMonitorTest, ClockOfAPlanIsSetOrNot) {
    for (const auto& [clockState, result] :
         {std::pair{"set", MonitorResult::success}, {"unset", MonitorResult::clockNotSet}}) {
        const auto model =
            attach(QByteArray(R"({"model": "41", "id": "A", "clock": ")") + clockState + "\"}");
        EXPECT_EQ(outcome(model->readBPMDate()), result) << clockState;
    }
    EXPECT_FALSE(readPlan(R"({"model": "41", "id": "A", "clock": "late"})"));
}

TEST_F(SimulatedMonitorTest, BuiltInMonthIsTheSameEachTime) {
    const SimulatedMonitorPlan plan = builtInPlan(clock.now());
    ASSERT_EQ(plan.records.size(), 62U);
    EXPECT_EQ(plan.records.front(), "26102107010000000481508300000000");
    std::string all;
    for (const std::string& record : plan.records)
        all += record;
    EXPECT_EQ(qChecksum(QByteArrayView(all.data(), static_cast<qsizetype>(all.size()))), 40823);
}

TEST_F(SimulatedMonitorTest, BuiltInMonthIsPlausible) {
    auto demo = makeSimulatedMonitor({}, clock).value();
    BPMModel model(*demo, clock);
    std::ignore = model.checkIsConnected();
    ASSERT_TRUE(model.checkIsConnected());
    const auto readings = model.getBPMCycleData(noProgress).value();
    EXPECT_GE(readings.size(), 50U);
    std::size_t undated = 0, averaged = 0, findings = 0;
    for (const ReadingModel& reading : readings) {
        EXPECT_TRUE(reading.sys > 100 && reading.sys < 160 && reading.dia > 60 && reading.dia < 105)
            << reading.sys;
        EXPECT_TRUE(reading.pulse > 50 && reading.pulse < 90);
        ASSERT_TRUE(reading.ReadingDate);
        undated += isNilReadingDate(reading.ReadingDate);
        averaged += reading.mam;
        findings += reading.Arrhythmia == 5;
        EXPECT_LE(*reading.ReadingDate, clock.now());
    }
    EXPECT_TRUE(undated >= 1 && undated <= 3) << undated;
    EXPECT_GT(averaged, 5U);
    EXPECT_TRUE(findings >= 2 && findings <= 6) << findings;
    EXPECT_FALSE(makeSimulatedMonitor(u"no such file"_s, clock));
}

} // namespace
} // namespace zel

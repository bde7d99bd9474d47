#include "cli/CliTest.h"

#include <csignal>
#include <iostream>
#include <unistd.h>

namespace zel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

/// The monitor of the plan with one fault.
QByteArray faulty(const char* fault) {
    return QByteArray(planM1).chopped(1) + R"(, "faults": [)" + fault + "]}";
}

/// No monitor. While it is looked for the first time, the clock is set back by a day.
class NoPort final : public MonitorPort {
public:
    explicit NoPort(ManualClock& around) : clock(around) {}
    PortOpen open() override {
        clock.advance(std::exchange(step, 0h));
        return PortOpen::absent;
    }
    bool isOpen() const override { return false; }
    bool disconnected() const override { return false; }
    bool write(std::span<const std::uint8_t>) override { return false; }
    int read(std::span<std::uint8_t>) override { return -1; }

private:
    ManualClock& clock;
    std::chrono::hours step{-24};
};

TEST_F(CliTest, MonitorPrintsWhatItHolds) {
    const Outcome outcome = zelWith(planM1, {u"monitor"_s});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.out, StartsWith("model: 41\narrhythmia: afib\nid: M1\nclock: 2026-11-21 09:00:3"));
    EXPECT_THAT(outcome.out, testing::EndsWith("\nreadings: 4\n"));
    EXPECT_EQ(outcome.err, "");

    const std::pair<const char*, const char*> models[] = {{"3a", "pad"}, {"37", "none"}, {"40", "none"}};
    for (const auto& [model, arrhythmia] : models)
        EXPECT_THAT(zelWith(QByteArray(planM1).replace("41", model), {u"monitor"_s}).out,
                    HasSubstr(std::string("\narrhythmia: ") + arrhythmia + "\n"));
}

/// A monitor at whose third chunk of a frame the user stops the program; it may block from then on.
class StoppedPort final : public MonitorPort {
public:
    StoppedPort(std::unique_ptr<MonitorPort> monitor, bool isBlocking)
        : port(std::move(monitor)), blocks(isBlocking) {}
    PortOpen open() override { return port->open(); }
    bool isOpen() const override { return port->isOpen(); }
    bool disconnected() const override { return port->disconnected(); }
    bool write(std::span<const std::uint8_t> report) override {
        const bool isChunk = report[0] == 0xFF;
        if (isChunk) std::cerr << "chunk " << ++chunks << '\n';
        if (isChunk && chunks == 3) std::raise(SIGINT);
        while (chunks == 3 && blocks)
            pause();
        return port->write(report);
    }
    int read(std::span<std::uint8_t> report) override { return port->read(report); }

private:
    std::unique_ptr<MonitorPort> port;
    bool blocks;
    int chunks = 0;
};

TEST_F(CliTest, SignalFinishesTheFrameAndThenEndsTheProgram) {
    const QStringList send{u"monitor"_s, u"--send-id"_s, u"NEW 7"_s};
    const auto stopAt = [&](bool blocks) {
        plug(std::make_unique<StoppedPort>(monitor(planM1), blocks));
        std::cerr << zel(send).out;
    };
    EXPECT_EXIT(stopAt(false), testing::KilledBySignal(SIGINT), "chunk 9\nchunk 10\n");
    EXPECT_EXIT(stopAt(true), testing::KilledBySignal(SIGINT), "chunk 3\n$") << "a device that blocks";
}

TEST_F(CliTest, MonitorIsChangedAsTold) {
    plug(planM1);
    EXPECT_THAT(zel({u"monitor"_s, u"--set-clock"_s}).out, StartsWith("clock: 2026-11-21 09:00:0"));
    EXPECT_EQ(zel({u"monitor"_s, u"--send-id"_s, u"NEW 7"_s}).out, "id: NEW 7\n");
    EXPECT_THAT(zel({u"monitor"_s}).out, testing::EndsWith("\nreadings: 4\n"));
    EXPECT_EQ(zel({u"monitor"_s, u"--erase"_s}).status, 2);
    EXPECT_THAT(zel({u"monitor"_s}).out, testing::EndsWith("\nreadings: 4\n"));
    EXPECT_EQ(zel({u"monitor"_s, u"--erase"_s, u"--yes"_s}).out, "readings: 0\n");
    EXPECT_THAT(zel({u"monitor"_s}).out, HasSubstr("\nid: NEW 7\n"));
}

TEST_F(CliTest, MonitorWhoseClockIsNotSetIsPrintedWhole) {
    plug(QByteArray(planM1).replace("\"clockOffsetSeconds\": 30", "\"clock\": \"unset\""));
    const Outcome outcome = zel({u"monitor"_s});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.out, testing::EndsWith("\nid: M1\nclock: not set\nreadings: 4\n"));
    EXPECT_THAT(zel({u"monitor"_s, u"--set-clock"_s}).out, StartsWith("clock: 2026-11-21 09:0"));
}

TEST_F(CliTest, MonitorIsWaitedFor) {
    const auto waited = [this](const QStringList& arguments, auto least, auto most) {
        const WallTime begin = clock.now();
        const Outcome outcome = zel(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        EXPECT_GE(clock.now() - begin, least);
        EXPECT_LE(clock.now() - begin, most);
        return outcome.err;
    };
    EXPECT_THAT(waited({u"monitor"_s}, 5s, 6s), HasSubstr("No monitor was found within 5 s"));
    EXPECT_THAT(waited({u"monitor"_s, u"--wait=60"_s}, 60s, 61s), HasSubstr("within 60 s"));
    plug(std::make_unique<NoPort>(clock));
    EXPECT_THAT(waited({u"monitor"_s}, 5s - 24h, 6s - 24h), HasSubstr("within 5 s"));
    plug(QByteArray());
    whenUnplugged = PortOpen::denied;
    EXPECT_THAT(waited({u"monitor"_s}, 5s, 6s), HasSubstr("70-zel.rules"));
    plug(faulty(R"({"kind": "noAnswer", "command": ">"})"));
    EXPECT_THAT(waited({u"monitor"_s}, 5s, 15s), HasSubstr("did not answer"));

    plug(faulty(R"({"kind": "absent", "command": "open", "times": 2})"));
    EXPECT_EQ(zel({u"monitor"_s}).status, 0);
    // The first query only probes, for one report, so even no waiting at all means two.
    plug(QByteArray(planM1).replace("{\"model\"", "{\"reportSizes\": [2], \"model\""));
    EXPECT_EQ(zel({u"monitor"_s, u"--wait"_s, u"0"_s}).status, 0);
    EXPECT_EQ(zel({u"monitor"_s, u"--wait"_s, u"86400"_s}).status, 0);
    for (const int delay : {100, 250, 900, 1500, 2000}) {
        const auto slow = R"({"kind": "late", "command": ">", "delayMs": %1})";
        plug(faulty(QByteArray(slow).replace("%1", QByteArray::number(delay)).constData()));
        for (const auto& wait : {u"0"_s, u"5"_s})
            EXPECT_THAT(zel({u"monitor"_s, u"--wait"_s, wait}).out, HasSubstr("id: M1\nclock: 2026-11-2"))
                << delay;
    }
}

TEST_F(CliTest, MonitorThatStopsAnsweringFailsAfterWhatIsKnown) {
    struct Case {
        const char* fault;
        const char* lastLine;
        const char* reason;
    };
    const Case cases[] = {
        {R"({"kind": "badCheckField", "command": "$"})", "arrhythmia: afib\n", "ID could not be read"},
        {R"({"kind": "noAnswer", "command": "&"})", "id: M1\n", "clock could not be read"},
        {R"({"kind": "unplug", "command": "\""})", "\nclock: 2026", "number of readings"},
    };
    for (const Case& broken : cases) {
        SCOPED_TRACE(broken.fault);
        const Outcome outcome = zelWith(faulty(broken.fault), {u"monitor"_s});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_THAT(outcome.out, HasSubstr(broken.lastLine));
        EXPECT_THAT(outcome.out, testing::Not(HasSubstr("readings")));
        EXPECT_THAT(outcome.err, HasSubstr(broken.reason));
    }
}

TEST_F(CliTest, MonitorChangeThatFailsIsTold) {
    plug(faulty(R"({"kind": "wrongAcknowledgement", "command": "#"},
                   {"kind": "wrongAcknowledgement", "command": "'"})"));
    const std::pair<QStringList, const char*> cases[] = {
        {{u"monitor"_s, u"--set-clock"_s}, "clock could not be set"},
        {{u"monitor"_s, u"--send-id"_s, u"X"_s}, "could not be written into the monitor"},
        {{u"monitor"_s, u"--erase"_s, u"--yes"_s}, "could not be erased"},
    };
    for (const auto& [arguments, reason] : cases) {
        const Outcome outcome = zel(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_THAT(outcome.err, HasSubstr(reason));
    }
    plug(faulty(R"({"kind": "late", "command": "$", "delayMs": 1, "times": 1},
                   {"kind": "noAnswer", "command": "$"})"));
    EXPECT_THAT(zel({u"monitor"_s, u"--erase"_s, u"--yes"_s}).err, HasSubstr("empty now could not be seen"));
    plug(faulty(R"({"kind": "notTaken", "command": "#"}, {"kind": "notTaken", "command": "'"})")
             .replace("\": 30", "\": 90"));
    for (const auto& [arguments, reason] : cases) {
        const Outcome outcome = zel(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, testing::AllOf(HasSubstr(reason), HasSubstr("still holds something else")));
    }
    plug(QByteArray(planM1).replace("\"M1\"", "\"\""));
    EXPECT_THAT(zel({u"monitor"_s, u"--erase"_s, u"--yes"_s}).err, HasSubstr("--send-id"));
}

TEST_F(CliTest, SimulatedMonitorsBadPlanIsTold) {
    const Outcome outcome = zelWith("{", {u"monitor"_s});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.err, HasSubstr("plan.json"));
}

} // namespace

} // namespace zel

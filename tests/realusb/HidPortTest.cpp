// HidPort on a real kernel with a real USB device. ZEL_CABLE is the command that pulls and puts back the
// cable.

#include "monitor/HidPort.h"

#include "MonitorPortContract.h"
#include "monitor/BPMModel.h"
#include "monitor/SimulatedMonitor.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <string>
#include <sys/wait.h>
#include <tuple>
#include <unistd.h>

namespace zel {
namespace {

void cable(const std::string& action) {
    const char* command = std::getenv("ZEL_CABLE");
    ASSERT_NE(command, nullptr);
    ASSERT_EQ(std::system((command + (" " + action)).c_str()), 0)
        << action; // NOLINT(cert-env33-c): the test's own script
}

PortOnTrial overUSB() {
    cable("plug");
    return {std::make_unique<HidPort>(), [] { cable("plug"); }, [] { cable("unplug"); },
            [] { SystemClock().sleep(std::chrono::milliseconds{1}); }};
}

INSTANTIATE_TEST_SUITE_P(Hid, MonitorPortContract, testing::Values(overUSB));

TEST(HidPortAsRoot, OnlyOneProgramHoldsTheMonitor) {
    cable("plug");
    std::array<int, 2> opened{};
    ASSERT_EQ(pipe(opened.data()), 0);
    const pid_t holder = fork();
    if (holder == 0) {
        HidPort port;
        const char success = port.open() == PortOpen::opened ? 'y' : 'n';
        std::ignore = write(opened[1], &success, 1);
        pause();
    }
    char success = 'n';
    ASSERT_EQ(read(opened[0], &success, 1), 1);
    EXPECT_EQ(success, 'y');
    HidPort port;
    EXPECT_EQ(port.open(), PortOpen::denied);
    kill(holder, SIGKILL);
    waitpid(holder, nullptr, 0);
    EXPECT_EQ(port.open(), PortOpen::opened);
}

TEST(HidPortAsRoot, DownloadsWhatTheMonitorHolds) {
    cable("plug");
    const auto download = [](MonitorPort& port) {
        SystemClock clock;
        BPMModel model(port, clock);
        for (int i = 0; i < 3 && !model.checkIsConnected();)
            ++i;
        EXPECT_TRUE(model.isAFib());
        EXPECT_EQ(model.sendID(QStringLiteral("USB~1"), false), MonitorResult::success);
        EXPECT_EQ(model.getBPMID().value_or(QString{}), QStringLiteral("USB~1"));
        return model.getBPMCycleData([](int, int) {}).value_or(std::vector<ReadingModel>{});
    };
    HidPort port;
    const auto readings = download(port);
    const auto expected = download(*makeSimulatedMonitor({}, SystemClock()).value());
    ASSERT_EQ(readings.size(), expected.size());
    for (std::size_t i = 0; i < readings.size(); ++i)
        EXPECT_TRUE(readings[i].isSame(expected[i])) << i;
}

std::ptrdiff_t openHandles() {
    using Folder = std::filesystem::directory_iterator;
    return std::distance(Folder{"/proc/self/fd"}, Folder{});
}

TEST(HidPortAsRoot, IsSeenAndMissedEachTimeAndLeavesNothingOpen) {
    SystemClock clock;
    HidPort port;
    BPMModel model(port, clock);
    const auto comesTo = [&](bool isConnected) {
        const auto end = clock.now() + std::chrono::minutes{1};
        while (clock.now() < end) {
            if (model.checkIsConnected() == isConnected) return true;
            clock.sleep(std::chrono::milliseconds{10});
        }
        return false;
    };
    std::ptrdiff_t before = 0;
    for (int cycle = 0; cycle < 50; ++cycle) {
        cable("plug");
        ASSERT_TRUE(comesTo(true)) << cycle;
        cable("unplug");
        ASSERT_TRUE(comesTo(false)) << cycle;
        ASSERT_EQ(port.open(), PortOpen::absent) << cycle;
        if (cycle == 0) before = openHandles();
    }
    EXPECT_EQ(openHandles(), before);
}

TEST(HidPortAsNobody, MissingPermissionIsTold) {
    ASSERT_NE(geteuid(), 0U);
    HidPort port;
    EXPECT_EQ(port.open(), PortOpen::denied);
}

} // namespace
} // namespace zel

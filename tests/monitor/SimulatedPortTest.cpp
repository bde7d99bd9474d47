#include "MonitorPortContract.h"
#include "monitor/SimulatedMonitor.h"
#include "monitor/SimulatedMonitorPlan.h"
#include "support/ManualClock.h"

namespace zel {
namespace {

PortOnTrial simulated() {
    auto clock = std::make_shared<ManualClock>();
    auto monitor = std::make_unique<SimulatedMonitor>(builtInPlan(clock->now()), *clock);
    SimulatedMonitor& cable = *monitor;
    return {std::move(monitor), [&cable] { cable.plug(); }, [&cable] { cable.unplug(); },
            [clock] { clock->sleep(std::chrono::milliseconds{1}); }};
}

INSTANTIATE_TEST_SUITE_P(Simulated, MonitorPortContract, testing::Values(simulated));

} // namespace
} // namespace zel

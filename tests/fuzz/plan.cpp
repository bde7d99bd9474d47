// The description of a simulated monitor: what is taken is within the monitor's limits, and can be played.

#include "Fuzzing.h"
#include "monitor/BPMModel.h"
#include "monitor/SimulatedMonitor.h"
#include "monitor/SimulatedMonitorPlan.h"

#include <algorithm>

using namespace zel;
using zel::fuzz::require;

namespace {

void requireInLimits(const SimulatedMonitorPlan& plan) {
    require(plan.model.size() == 2 && plan.ID.size() <= longestID, "model and ID fit");
    require(plan.records.size() <= mostRecords, "the records fit");
    require(
        std::ranges::all_of(plan.records, [](const auto& record) { return record.size() == recordLength; }),
        "a record has its length");
    require(!plan.reportSizes.empty()
                && std::ranges::all_of(plan.reportSizes,
                                       [](std::size_t size) { return size >= 1 && size <= reportCapacity; }),
            "reports can be sent");
}

void play(const SimulatedMonitorPlan& plan) {
    fuzz::QuickClock clock;
    const WallTime begin = clock.now();
    SimulatedMonitor monitor{plan, clock};
    BPMModel model{monitor, clock};
    std::ignore = model.getBPMVersion(); // only a probe
    std::ignore = model.getBPMID();
    std::ignore = model.readBPMDate();
    const auto readings = model.getBPMCycleData([](int, int) {});
    if (readings) require(readings->size() == plan.records.size(), "a download brings every record");
    if (plan.faults.empty()) require(readings.has_value(), "a monitor without faults can be downloaded");
    require(clock.now() - begin < std::chrono::hours{1}, "every exchange ends");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto plan = readPlan(fuzz::bytesOf(data, size));
    if (!plan) {
        require(!describe(plan.error()).isEmpty(), "a refusal says why");
        return 0;
    }
    requireInLimits(*plan);
    play(*plan);
    return 0;
}

// How much of a full download the program spends on its own work, apart from the waits that the protocol
// orders.

#include "Figure.h"
#include "monitor/BPMModel.h"
#include "monitor/SimulatedMonitor.h"
#include "monitor/SimulatedMonitorPlan.h"

#include <chrono>
#include <cstdlib>
#include <string>
#include <vector>

namespace zel {
namespace {

/// The computer's clock, which also tells how long it has slept.
class SleepMeter final : public Clock {
public:
    [[nodiscard]] WallTime now() const override { return system.now(); }
    void sleep(std::chrono::microseconds duration) override {
        const auto begin = std::chrono::steady_clock::now();
        system.sleep(duration);
        slept += std::chrono::steady_clock::now() - begin;
    }
    std::chrono::steady_clock::duration slept{0};

private:
    SystemClock system;
};

/// A full memory, at the monitor's own speed.
SimulatedMonitorPlan fullMonitor(const Clock& clock, std::size_t records) {
    SimulatedMonitorPlan plan = builtInPlan(clock.now());
    const std::size_t known = plan.records.size();
    while (plan.records.size() < records)
        plan.records.push_back(plan.records[plan.records.size() - known]);
    return plan;
}

void measureDownload(std::size_t records, int rounds) {
    SleepMeter clock;
    SimulatedMonitor port(fullMonitor(clock, records), clock);
    BPMModel model(port, clock);
    std::ignore = model.checkIsConnected();
    std::vector<double> all, waits, ratios;
    for (int round = 0; round < rounds; ++round) {
        clock.slept = {};
        std::size_t count = 0;
        all.push_back(seconds([&] {
            const auto readings = model.getBPMCycleData([](int, int) {});
            count = readings ? readings->size() : 0;
        }));
        if (count < records) std::exit(1); // what was measured is not a download
        waits.push_back(std::chrono::duration<double>(clock.slept).count());
        ratios.push_back(all.back() / waits.back());
    }
    print({.what = "Download of " + std::to_string(records) + " records",
           .unit = "ms",
           .ours = median(all) * 1e3,
           .against = "the waits that the protocol orders",
           .bare = median(waits) * 1e3,
           .target = 1.05,
           .ratio = median(ratios)});
}

} // namespace
} // namespace zel

int main(int argc, char** argv) {
    const bool small = zel::isSmall(argc, argv);
    zel::measureDownload(small ? 70 : zel::mostRecords, small ? 1 : 5);
}

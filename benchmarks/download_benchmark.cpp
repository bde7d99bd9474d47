// How much of a full download the program spends on its own work, apart from the waits that the protocol
// orders.

#include "monitor/BPMModel.h"
#include "monitor/SimulatedMonitor.h"
#include "monitor/SimulatedMonitorPlan.h"

#include <benchmark/benchmark.h>

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

void downloadOf255Records(benchmark::State& state) {
    SleepMeter clock;
    SimulatedMonitorPlan plan = builtInPlan(clock.now());
    while (plan.records.size() < mostRecords)
        plan.records.push_back(plan.records[plan.records.size() - 62]);
    SimulatedMonitor port(plan, clock);
    BPMModel model(port, clock);
    std::ignore = model.checkIsConnected();
    clock.slept = {};
    const auto begin = std::chrono::steady_clock::now();
    for (auto _ : state) {
        const auto readings = model.getBPMCycleData([](int, int) {});
        if (!readings || readings->size() != mostRecords) state.SkipWithError("the download failed");
    }
    const auto all = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    const double waits = std::chrono::duration<double>(clock.slept).count();
    state.counters["outside_waits_ratio"] = (all - waits) / all; // to stay below 0.1
}

BENCHMARK(downloadOf255Records)->Iterations(5)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace zel

BENCHMARK_MAIN();

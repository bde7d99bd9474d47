#include "support/MonitorTest.h"

namespace zel {

using namespace Qt::StringLiterals;

PortOpen PluggedPort::open() {
    ++opened;
    if (denied) return PortOpen::denied;
    return plugged ? device.open() : PortOpen::absent;
}

MonitorTest::MonitorTest() {
    plan.ID = "P1";
    plan.records = readings(12);
}

void MonitorTest::TearDown() {
    if (worker) worker->stop();
    WidgetTest::TearDown();
    worker.reset();
}

void MonitorTest::attach() {
    worker.reset();
    status.update([](MonitorState& state) { state = {}; });
    device = std::make_unique<SimulatedMonitor>(plan, clock);
    port = std::make_unique<PluggedPort>(*device);
    port->plugged = startsPlugged;
    worker = std::make_unique<MonitorWorker>(*port, clock);
}

int MonitorTest::readingsInMonitor() {
    int count = -1;
    worker->submit(
        &window(), [](BPMModel& monitor) { return monitor.getBPMCycleDataCount(); },
        [&](const MonitorExpected<int>& counted) { count = counted.value_or(-2); });
    waitFor([&] { return count != -1; });
    return count;
}

std::vector<std::string> MonitorTest::readings(int total) {
    std::vector<std::string> records;
    for (int i = 0; i < total; ++i) {
        const auto time =
            u"2603%1%2"_s.arg(i % 28 + 1, 2, 10, QChar(u'0')).arg(700 + i / 28, 4, 10, QChar(u'0'));
        records.push_back(encode({.time = time, .sys = 120 + i % 20, .dia = 80, .pulse = 60}));
    }
    return records;
}

} // namespace zel

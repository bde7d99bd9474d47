#include "support/MonitorTest.h"

#include "monitor/MonitorFrames.h"

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

PortOpen PluggedPort::open() {
    ++opened;
    if (denied) return PortOpen::denied;
    return plugged ? device.open() : PortOpen::absent;
}

bool PluggedPort::write(std::span<const std::uint8_t> report) {
    if (!plugged) return false;
    const bool isFrame = report[0] == 0xFF;
    if (isFrame) onFrame();
    if (isFrame && keepsNothing) return true;
    const auto command = isFrame ? Command{} : static_cast<Command>(report[commandPreamble.size()]);
    if (command == Command::records) ++recordsAsked;
    if (command == Command::setDate && !keepsNothing) isClockUnset = false;
    if (command != Command::date || !isClockUnset) return device.write(report);
    std::string reply(dateReplyLength, '0');
    const CheckField check = replyCheckField(reply);
    reply.replace(dateReplyLength - checkFieldLength, checkFieldLength, {check.high, check.low});
    reply.insert(reply.begin(), static_cast<char>(acknowledgement));
    for (std::size_t i = 0; i < reply.size(); i += reportCapacity) {
        const std::string part = reply.substr(i, reportCapacity);
        unsetClock.emplace_back(Report{static_cast<std::uint8_t>(part.size())});
        unsetClock.back().insert(unsetClock.back().end(), part.begin(), part.end());
    }
    return true;
}

int PluggedPort::read(std::span<std::uint8_t> report) {
    if (!plugged) return -1;
    if (unsetClock.empty()) return device.read(report);
    const Report next = std::move(unsetClock.front());
    unsetClock.pop_front();
    std::ranges::copy(next, report.begin());
    return static_cast<int>(next.size());
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

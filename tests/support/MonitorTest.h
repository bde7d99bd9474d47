#pragma once

#include "app/device/MonitorStatus.h"
#include "app/device/MonitorWorker.h"
#include "monitor/SimulatedMonitor.h"
#include "monitor/SimulatedMonitorPlan.h"
#include "support/WidgetTest.h"

#include <deque>
#include <string>
#include <vector>

namespace zel {

/// A monitor that can be plugged in and pulled out, may lack a time, and may keep nothing of what it
/// acknowledges.
class PluggedPort final : public MonitorPort {
public:
    explicit PluggedPort(MonitorPort& monitor) : device(monitor) {}
    PortOpen open() override;
    bool isOpen() const override { return device.isOpen(); }
    bool disconnected() const override { return !plugged || device.disconnected(); }
    bool write(std::span<const std::uint8_t> report) override;
    int read(std::span<std::uint8_t> report) override;
    std::atomic<bool> plugged = true;
    std::atomic<bool> denied = false;
    std::atomic<int> opened = 0;
    std::atomic<int> recordsAsked = 0;
    std::atomic<bool> isClockUnset = false; ///< until it is set
    std::atomic<bool> keepsNothing = false; ///< of ID, clock and erasing
    std::function<void()> onFrame = [] {};  ///< on the monitor's thread: an ID or a time is being sent

private:
    MonitorPort& device;
    std::deque<Report> unsetClock; ///< that answer's reports
};

/// Widgets that talk to a monitor, which is attached as the plan says.
class MonitorTest : public WidgetTest {
protected:
    MonitorTest();
    void TearDown() override;

    /// Attaches a monitor made by the plan, in the place of an earlier one; nothing is known of it yet.
    void attach();
    int readingsInMonitor();
    /// So many records as the monitor stores them: one a day, all different.
    static std::vector<std::string> readings(int total);

    SimulatedMonitorPlan plan; ///< of P1, with 12 readings
    MonitorStatus status;
    bool startsPlugged = true;
    std::unique_ptr<SimulatedMonitor> device;
    std::unique_ptr<PluggedPort> port;
    std::unique_ptr<MonitorWorker> worker; ///< once attached
};

} // namespace zel

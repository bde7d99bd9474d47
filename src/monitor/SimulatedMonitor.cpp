#include "monitor/SimulatedMonitor.h"

#include "monitor/SimulatedDevice.h"

#include <QFile>

#include <algorithm>

namespace zel {

namespace {

enum class Handle { closed, open, lost, failed }; ///< lost: unplugged, though nothing has failed on it yet

} // namespace

struct SimulatedMonitor::Device {
    Device(SimulatedMonitorPlan plan, const Clock& wallClock)
        : brain(std::move(plan), wallClock), clock(wallClock) {}

    /// Comes back after an unplug when the plan says so.
    void replugWhenDue() {
        if (attached || !replug) return;
        const bool byOpens = replug->replugAfterOpens && (*replug->replugAfterOpens)-- <= 0;
        const bool byTime = replug->replugAfter && clock.now() >= unplugged + *replug->replugAfter;
        attached = byOpens || byTime;
    }
    void unplug(const std::optional<SimulatedFault>& replugRule) {
        attached = false;
        replug = replugRule;
        unplugged = clock.now();
        if (handle == Handle::open) handle = Handle::lost;
    }

    SimulatedDevice brain;
    const Clock& clock;
    Handle handle = Handle::closed;
    bool attached = true;
    std::optional<SimulatedFault> replug;
    WallTime unplugged{};
};

SimulatedMonitor::SimulatedMonitor(SimulatedMonitorPlan plan, const Clock& clock)
    : device(std::make_unique<Device>(std::move(plan), clock)) {}
SimulatedMonitor::~SimulatedMonitor() = default;

std::size_t SimulatedMonitor::count() const { return device->brain.count(); }
void SimulatedMonitor::plug() { device->attached = true; }
void SimulatedMonitor::unplug() { device->unplug(std::nullopt); }

PortOpen SimulatedMonitor::open() {
    device->handle = Handle::closed;
    device->brain.reset();
    device->replugWhenDue();
    if (!device->attached) return PortOpen::absent;
    if (const auto fault = device->brain.takeFault(std::nullopt))
        return fault->kind == SimulatedFault::Kind::denied ? PortOpen::denied : PortOpen::absent;
    device->handle = Handle::open;
    return PortOpen::opened;
}

bool SimulatedMonitor::isOpen() const { return device->handle != Handle::closed; }

bool SimulatedMonitor::disconnected() const { return device->handle == Handle::failed; }

bool SimulatedMonitor::write(std::span<const std::uint8_t> report) {
    if (device->handle == Handle::closed) return false;
    if (device->handle != Handle::open || !device->brain.take(report)) device->handle = Handle::failed;
    return device->handle == Handle::open;
}

int SimulatedMonitor::read(std::span<std::uint8_t> report) {
    if (device->handle == Handle::closed || device->handle == Handle::failed) return -1;
    const auto event = device->brain.next();
    if (event && event->kind == DeviceEvent::Kind::report) {
        const auto length = std::min(report.size(), event->report.size());
        std::copy_n(event->report.begin(), length, report.begin());
        return static_cast<int>(length);
    }
    if (!event && device->handle == Handle::open) return 0;
    if (event && event->kind == DeviceEvent::Kind::unplug) device->unplug(event->fault);
    device->handle = Handle::failed;
    return -1;
}

tl::expected<std::unique_ptr<MonitorPort>, QString> makeSimulatedMonitor(const QString& path,
                                                                         const Clock& clock) {
    if (path.isEmpty()) return std::make_unique<SimulatedMonitor>(builtInPlan(clock.now()), clock);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return tl::unexpected(qtTrId("simulatedUnreadable").arg(path, file.errorString()));
    auto plan = readPlan(file.readAll());
    if (!plan) return tl::unexpected(qtTrId("simulatedRefused").arg(path, describe(plan.error())));
    return std::make_unique<SimulatedMonitor>(std::move(*plan), clock);
}

} // namespace zel

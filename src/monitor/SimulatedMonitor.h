#pragma once

#include "monitor/MonitorPort.h"
#include "store/Clock.h"

#include <QString>

#include <tl/expected.hpp>

#include <memory>

namespace zel {

struct SimulatedMonitorPlan; // monitor/SimulatedMonitorPlan.h

/// A monitor in software that answers byte for byte as the device does, with faults on demand. Its memory,
/// clock and ID live as long as the object. docs/simulated-monitor.md describes the plan's file.
class SimulatedMonitor final : public MonitorPort {
public:
    SimulatedMonitor(SimulatedMonitorPlan plan, const Clock& clock);
    ~SimulatedMonitor() override;
    /// Pulls and puts back the cable. Reports that are queued already are still delivered.
    void unplug();
    void plug();
    [[nodiscard]] std::size_t count() const; ///< of the records in its memory

    [[nodiscard]] PortOpen open() override;
    [[nodiscard]] bool isOpen() const override;
    [[nodiscard]] bool disconnected() const override;
    [[nodiscard]] bool write(std::span<const std::uint8_t> report) override;
    [[nodiscard]] int read(std::span<std::uint8_t> report) override;

private:
    struct Device;
    std::unique_ptr<Device> device;
};

/// The monitor that the user asked for on the command line. An empty \p path gives the built-in one, which
/// holds a plausible month of readings up to \p clock's today.
/// \return the words for the user when the file cannot be read or is no plan
[[nodiscard]] tl::expected<std::unique_ptr<MonitorPort>, QString> makeSimulatedMonitor(const QString& path,
                                                                                       const Clock& clock);

} // namespace zel

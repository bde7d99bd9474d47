#pragma once

#include "monitor/SimulatedMonitorPlan.h"

#include <deque>

namespace zel {

/// Something that happens at the device's end of the cable.
struct DeviceEvent {
    enum class Kind { report, readError, unplug };
    Kind kind = Kind::report;
    Report report{};
    WallTime notBefore{};
    SimulatedFault fault{}; ///< that unplugs
};

/// What the monitor does, apart from any port: takes the reports that are written to it and queues its own.
/// Keeps its memory, ID and clock as long as it lives.
class SimulatedDevice {
public:
    SimulatedDevice(SimulatedMonitorPlan given, const Clock& wallClock);

    /// One output report. \return false when the plan has this write fail
    [[nodiscard]] bool take(std::span<const std::uint8_t> written);
    /// The next thing that has happened by now, if any.
    [[nodiscard]] std::optional<DeviceEvent> next();
    /// Forgets what is under way, as when the cable is pulled.
    void reset();
    /// The fault that the plan has for this command or (none) opening, counted as shown.
    [[nodiscard]] std::optional<SimulatedFault> takeFault(std::optional<Command> command);
    [[nodiscard]] std::size_t count() const { return plan.records.size(); }

private:
    void answer(Command command, const std::optional<SimulatedFault>& fault);
    [[nodiscard]] std::string replyTo(Command command) const;
    [[nodiscard]] std::string dateReply() const;
    [[nodiscard]] std::string recordsReply() const;
    [[nodiscard]] std::vector<Report> inReports(Command command, std::string_view reply) const;
    void takeChunk(std::span<const std::uint8_t> chunk);
    void takeFrame();
    void takeClock(std::string_view frame);

    SimulatedMonitorPlan plan;
    const Clock& clock;
    std::chrono::milliseconds clockOffset;
    bool isClockSet;
    std::string settings;
    std::optional<Command> frameFor; ///< the command whose long data frame is being received
    std::string frame;
    std::deque<DeviceEvent> queue;
};

} // namespace zel

#pragma once

#include "cli/CliTest.h"
#include "monitor/SimulatedMonitorPlan.h"
#include "support/FailingCalls.h"

namespace zel {

/// The cable to a monitor in software, which may be pulled out of it and put into another one.
class Wire final : public MonitorPort {
public:
    Wire(SimulatedMonitorPlan plan, ManualClock& wallClock);

    /// Once \p isPulled the monitor is gone, and \p plan's is there from the next opening on.
    void swapOnce(std::function<bool()> isPulled, SimulatedMonitorPlan plan);
    void plug() { monitor->plug(); }
    [[nodiscard]] std::size_t held() const; ///< by the monitor that was there first
    [[nodiscard]] std::size_t heldByOther() const { return other ? other->count() : 0; }
    [[nodiscard]] int reports() const { return delivered; } ///< so far
    [[nodiscard]] bool isSwapped() const { return place == Place::other; }

    PortOpen open() override;
    [[nodiscard]] bool isOpen() const override { return there().isOpen(); }
    [[nodiscard]] bool disconnected() const override { return isLost || there().disconnected(); }
    bool write(std::span<const std::uint8_t> report) override;
    int read(std::span<std::uint8_t> report) override;

private:
    enum class Place { monitor, nowhere, other };
    [[nodiscard]] const SimulatedMonitor& there() const { return isSwapped() ? *other : *monitor; }
    [[nodiscard]] SimulatedMonitor& there() { return isSwapped() ? *other : *monitor; }
    [[nodiscard]] bool isGone();

    ManualClock& clock;
    std::unique_ptr<SimulatedMonitor> monitor;
    std::unique_ptr<SimulatedMonitor> other;
    std::function<bool()> pulled = [] { return false; };
    int delivered = 0;
    Place place = Place::monitor;
    bool isLost = false; ///< something failed since it is gone
};

/// Downloads of 255 readings for the patient M1, who has none yet, with emptying the monitor afterwards.
class WireTest : public CliTest {
protected:
    WireTest();

    /// A full monitor whose reports hold eight bytes; \p sys of the first record, by one more for each other.
    [[nodiscard]] static SimulatedMonitorPlan fullMonitor(const QByteArray& ID = "M1", int sys = 0);
    /// Puts the wire to a monitor into the computer, and the data file back to what it was before all.
    Wire& attach(SimulatedMonitorPlan plan);
    /// What one download did, and how long it took on the monitor's clock.
    struct Download {
        Outcome outcome;
        std::chrono::microseconds took;
        QStringList warnings; ///< in the program's log, of the monitor
    };
    Download download(const QStringList& more = {});
    [[nodiscard]] bool isStored() const { return content() == whole; } ///< all, and nothing else
    [[nodiscard]] bool isUntouched() const { return data() == before; }
    [[nodiscard]] QByteArray content() const; ///< of the data file, but for the time of the download

    WallTime start = clock.now();
    QByteArray before;
    QByteArray whole; ///< content() after a download that nothing disturbed

private:
    FailingCalls quickDisk; ///< which is not waited for
};

/// No download takes longer, whatever befalls it. Its waits are: 20 s for a monitor, 24 s for its ID; in each
/// of three tries 29 s for the model, 24, 48 and 72 s for the first report, 56, 112 and 168 s for the
/// records, 3 s for a quiet line; then 5 s for the order to erase, and in three tries each 24 s for the ID
/// and 45 s for the count.
inline constexpr std::chrono::seconds longestDownload{20 + 24 + 3 * 29 + 144 + 336 + 9 + 5 + 3 * (24 + 45)};

} // namespace zel

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace zel {

enum class PortOpen {
    opened,
    absent, ///< no monitor is attached
    denied, ///< one is attached, but may not be opened: no permission, or another program holds it
};

/// The seam below the frame codec: one HID device, USB 04B4:5500. Implemented by HidPort and
/// SimulatedMonitor; tests/monitor holds the contract that both keep. One thread at a time.
class MonitorPort {
public:
    virtual ~MonitorPort() = default;
    /// Opens the first matching device, without blocking. A handle that is open is closed first.
    [[nodiscard]] virtual PortOpen open() = 0;
    [[nodiscard]] virtual bool isOpen() const = 0;
    /// The device behind the open handle was unplugged, or an earlier read or write on it failed; open()
    /// again.
    [[nodiscard]] virtual bool disconnected() const = 0;
    /// One output report; the first byte counts as the report number. \return false on failure
    [[nodiscard]] virtual bool write(std::span<const std::uint8_t> report) = 0;
    /// One input report if there is one; never waits.
    /// \return its length, 0 when there is none now (which never means unplugged), -1 on failure
    [[nodiscard]] virtual int read(std::span<std::uint8_t> report) = 0;
};

} // namespace zel

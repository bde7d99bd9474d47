#pragma once

#include "monitor/MonitorPort.h"

#include <memory>

namespace zel {

/// The real monitor over hidapi's libusb backend. (A stock Linux kernel never gives this device a hidraw
/// node: it hands it to the cypress_m8 serial driver, from which libusb takes it over.)
/// One in a process at a time: opening starts hidapi anew.
class HidPort final : public MonitorPort {
public:
    HidPort();
    ~HidPort() override;
    [[nodiscard]] PortOpen open() override;
    [[nodiscard]] bool isOpen() const override;
    [[nodiscard]] bool disconnected() const override;
    [[nodiscard]] bool write(std::span<const std::uint8_t> report) override;
    [[nodiscard]] int read(std::span<std::uint8_t> report) override;

private:
    struct Device;
    std::unique_ptr<Device> device;
};

} // namespace zel

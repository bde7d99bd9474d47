#include "monitor/HidPort.h"

#include <hidapi.h>

#include <optional>

namespace zel {

namespace {

constexpr unsigned short vendorID = 0x04B4;
constexpr unsigned short productID = 0x5500;

/// hidapi's own state, from the first use to the last.
class HidLibrary {
public:
    HidLibrary() { hid_init(); }
    ~HidLibrary() { hid_exit(); }
    HidLibrary(const HidLibrary&) = delete;
    HidLibrary& operator=(const HidLibrary&) = delete;
};

struct CloseHandle {
    void operator()(hid_device* handle) const { hid_close(handle); }
};

struct FreeEnumeration {
    void operator()(hid_device_info* list) const { hid_free_enumeration(list); }
};

bool isAttached() {
    return std::unique_ptr<hid_device_info, FreeEnumeration>(hid_enumerate(vendorID, productID)) != nullptr;
}

} // namespace

struct HidPort::Device {
    std::optional<HidLibrary> library;
    std::unique_ptr<hid_device, CloseHandle> ghandle;
    bool failed = false; ///< hidapi never revives a handle on which a read or write has failed
};

HidPort::HidPort() : device(std::make_unique<Device>()) {}
HidPort::~HidPort() = default;

PortOpen HidPort::open() {
    device->ghandle.reset();
    device->failed = false;
    // A fresh look at the bus: where no udev runs, libusb's list of devices stays as it was when it was
    // started.
    device->library.reset();
    device->library.emplace();
    device->ghandle.reset(hid_open(vendorID, productID, nullptr));
    if (!device->ghandle) return isAttached() ? PortOpen::denied : PortOpen::absent;
    hid_set_nonblocking(device->ghandle.get(), 1);
    return PortOpen::opened;
}

bool HidPort::isOpen() const { return device->ghandle != nullptr; }

bool HidPort::disconnected() const { return device->failed; }

bool HidPort::write(std::span<const std::uint8_t> report) {
    if (!isOpen() || device->failed) return false;
    device->failed = hid_write(device->ghandle.get(), report.data(), report.size()) < 0;
    return !device->failed;
}

int HidPort::read(std::span<std::uint8_t> report) {
    if (!isOpen()) return -1;
    const int length = hid_read(device->ghandle.get(), report.data(), report.size());
    if (length < 0) device->failed = true;
    return length;
}

} // namespace zel

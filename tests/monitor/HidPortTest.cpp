#include "monitor/HidPort.h"

#include "MonitorPortContract.h"
#include "monitor/SimulatedMonitor.h"
#include "monitor/SimulatedMonitorPlan.h"
#include "support/ManualClock.h"

#include <hidapi.h>

#include <string>

namespace zel {
namespace {

/// What stands behind the HID library's functions below: a simulated monitor on the bus, and what is held of
/// it.
struct Bus {
    ManualClock clock;
    SimulatedMonitor monitor{builtInPlan(clock.now()), clock};
    bool isAttached = true;
    bool isDenied = false;
    bool isNonblocking = false;
    int libraries = 0;
    int handles = 0;
    int lists = 0;
};
std::unique_ptr<Bus> bus; // NOLINT: the library's functions have no other way to it

bool isMonitor(unsigned short vendor, unsigned short product) {
    return vendor == 0x04B4 && product == 0x5500;
}

PortOnTrial overHid() {
    bus = std::make_unique<Bus>();
    return {std::make_unique<HidPort>(),
            [] {
                bus->isAttached = true;
                bus->monitor.plug();
            },
            [] {
                bus->isAttached = false;
                bus->monitor.unplug();
            },
            [] { bus->clock.advance(std::chrono::milliseconds{1}); }};
}

INSTANTIATE_TEST_SUITE_P(HidPort, MonitorPortContract, testing::Values(overHid));

TEST(HidPort, TellsAMonitorThatMayNotBeOpenedFromNone) {
    PortOnTrial trial = overHid();
    bus->isDenied = true;
    EXPECT_EQ(trial.port->open(), PortOpen::denied);
    EXPECT_FALSE(trial.port->isOpen());
    bus->isDenied = false;
    EXPECT_EQ(trial.port->open(), PortOpen::opened);
    EXPECT_TRUE(bus->isNonblocking) << "a read would wait for a report";
    EXPECT_EQ(trial.port->open(), PortOpen::opened);
    EXPECT_EQ(bus->handles, 1) << "what was open is closed first";
    EXPECT_EQ(bus->libraries, 1);
    trial.port.reset();
    EXPECT_EQ(bus->handles + bus->libraries + bus->lists, 0) << "nothing is left behind";
}

} // namespace
} // namespace zel

extern "C" {

int hid_init() { return ++zel::bus->libraries, 0; }
int hid_exit() { return --zel::bus->libraries, 0; }

hid_device_info* hid_enumerate(unsigned short vendor, unsigned short product) {
    if (!zel::bus->isAttached || !zel::isMonitor(vendor, product)) return nullptr;
    ++zel::bus->lists;
    return new hid_device_info{};
}
void hid_free_enumeration(hid_device_info* list) {
    --zel::bus->lists;
    delete list;
}

hid_device* hid_open(unsigned short vendor, unsigned short product, const wchar_t*) {
    if (zel::bus->isDenied || !zel::isMonitor(vendor, product)) return nullptr;
    if (zel::bus->libraries != 1 || zel::bus->monitor.open() != zel::PortOpen::opened) return nullptr;
    ++zel::bus->handles;
    return reinterpret_cast<hid_device*>(zel::bus.get()); // NOLINT: only its address matters
}
void hid_close(hid_device*) { --zel::bus->handles; }
int hid_set_nonblocking(hid_device*, int nonblocking) {
    zel::bus->isNonblocking = nonblocking == 1;
    return 0;
}
int hid_read(hid_device*, unsigned char* data, size_t length) {
    return zel::bus->monitor.read({data, length});
}
int hid_write(hid_device*, const unsigned char* data, size_t length) {
    return zel::bus->monitor.write({data, length}) ? static_cast<int>(length) : -1;
}
}

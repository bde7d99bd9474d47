// The simulated monitor behind a USB gadget: what the host writes is read from /dev/hidg0, what is written
// there are the monitor's input reports. Usage: monitor_responder DEVICE [PLAN]

#include "monitor/SimulatedDevice.h"

#include <QFile>

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

zel::SimulatedMonitorPlan planFrom(const char* path, const zel::Clock& clock) {
    if (path == nullptr) return zel::builtInPlan(clock.now());
    QFile file(QString::fromLocal8Bit(path));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return zel::readPlan(file.readAll()).value_or(zel::SimulatedMonitorPlan{});
}

/// The real monitor is a low-speed device: not more than one report in this time.
constexpr std::chrono::milliseconds reportInterval{8};

/// Answers until the cable is pulled.
void respond(int device, zel::SimulatedDevice& monitor, zel::Clock& clock) {
    std::array<std::uint8_t, 64> buffer{};
    for (;;) {
        const ssize_t length = read(device, buffer.data(), buffer.size());
        if (length < 0) return;
        if (!monitor.take(std::span(buffer).first(static_cast<std::size_t>(length)))) continue;
        while (const auto event = monitor.next()) {
            if (write(device, event->report.data(), event->report.size()) < 0) return;
            clock.sleep(reportInterval);
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) return 2;
    zel::SystemClock clock;
    zel::SimulatedDevice monitor(planFrom(argc > 2 ? argv[2] : nullptr, clock), clock);
    const int device = open(argv[1], O_RDWR | O_CLOEXEC);
    if (device < 0) {
        std::perror(argv[1]);
        return 1;
    }
    respond(device, monitor, clock);
    close(device);
    return 0;
}

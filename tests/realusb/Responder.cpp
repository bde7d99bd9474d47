// The simulated monitor behind a USB gadget: what the host writes is read from the gadget's device, what is
// written there are the monitor's input reports. Keeps its memory while the cable is pulled, until it is
// ended. Usage: monitor_responder DEVICE SWITCH [PLAN]; a line end written to SWITCH pulls the cable.

#include "monitor/SimulatedDevice.h"

#include <QFile>

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using std::chrono::milliseconds;

/// The real monitor is a low-speed device: not more than one report in this time.
constexpr milliseconds reportInterval{8};
constexpr milliseconds lookInterval{20};

std::optional<zel::SimulatedMonitorPlan> planFrom(const char* path, const zel::Clock& clock) {
    if (path == nullptr) return zel::builtInPlan(clock.now());
    QFile file(QString::fromLocal8Bit(path));
    if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    const auto plan = zel::readPlan(file.readAll());
    return plan ? std::optional{*plan} : std::nullopt;
}

void pullCable(const char* path) {
    const int handle = open(path, O_WRONLY | O_CLOEXEC);
    if (handle < 0 || write(handle, "\n", 1) < 0) std::perror(path);
    if (handle >= 0) close(handle);
}

/// Each plugging makes the device anew.
bool isPlugged(int device, const char* path) {
    struct stat own {};
    struct stat there {};
    return fstat(device, &own) == 0 && stat(path, &there) == 0 && own.st_ino == there.st_ino;
}

/// \return whether the cable is still plugged in
bool answer(int device, zel::SimulatedDevice& monitor, zel::Clock& clock) {
    while (const auto event = monitor.next()) {
        if (event->kind != zel::DeviceEvent::Kind::report) return false;
        if (write(device, event->report.data(), event->report.size()) < 0) return false;
        clock.sleep(reportInterval);
    }
    return true;
}

bool respond(int device, zel::SimulatedDevice& monitor, zel::Clock& clock) {
    std::array<std::uint8_t, 64> buffer{};
    pollfd awaited{device, POLLIN, 0};
    if (poll(&awaited, 1, static_cast<int>(lookInterval.count())) <= 0) return answer(device, monitor, clock);
    const ssize_t length = read(device, buffer.data(), buffer.size());
    if (length < 0) return false;
    return !monitor.take(std::span(buffer).first(static_cast<std::size_t>(length)))
           || answer(device, monitor, clock);
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) return 2;
    zel::SystemClock clock;
    const auto plan = planFrom(argc > 3 ? argv[3] : nullptr, clock);
    if (!plan) return 1; // so that no monitor answers
    zel::SimulatedDevice monitor(*plan, clock);
    for (;; clock.sleep(lookInterval)) {
        const int device = open(argv[1], O_RDWR | O_CLOEXEC);
        if (device < 0) continue;
        while (isPlugged(device, argv[1])) {
            if (respond(device, monitor, clock)) continue;
            pullCable(argv[2]); // which the plan may have asked for; else it is pulled already
            break;
        }
        close(device);
        monitor.reset();
    }
}

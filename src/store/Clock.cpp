#include "store/Clock.h"

#include <thread>

namespace zel {

WallTime SystemClock::now() const {
    return std::chrono::time_point_cast<std::chrono::microseconds>(std::chrono::system_clock::now());
}

void SystemClock::sleep(std::chrono::microseconds duration) { std::this_thread::sleep_for(duration); }

} // namespace zel

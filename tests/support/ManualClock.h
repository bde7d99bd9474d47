#pragma once

#include "store/Clock.h"

#include <mutex>

namespace zel {

/// A clock that stands still until it is told to move; sleeping moves it on. So a time-out of a minute is
/// tested in no time, and to the microsecond.
class ManualClock final : public Clock {
public:
    ManualClock() = default; ///< starts at 2026-11-21 08:00:00 UTC
    explicit ManualClock(WallTime start) : current(start) {}

    [[nodiscard]] WallTime now() const override {
        const std::scoped_lock lock(mutex);
        return current;
    }
    void sleep(std::chrono::microseconds duration) override {
        const std::scoped_lock lock(mutex);
        current += duration;
        total += duration;
    }
    void set(WallTime time) {
        const std::scoped_lock lock(mutex);
        current = time;
    }
    /// Moves the clock without a sleep; a negative step is a clock that was set back.
    void advance(std::chrono::microseconds step) {
        const std::scoped_lock lock(mutex);
        current += step;
    }
    /// The sum of all sleeps so far.
    [[nodiscard]] std::chrono::microseconds slept() const {
        const std::scoped_lock lock(mutex);
        return total;
    }

private:
    mutable std::mutex mutex;
    WallTime current = std::chrono::sys_days{std::chrono::year{2026} / 11 / 21} + std::chrono::hours{8};
    std::chrono::microseconds total{0};
};

} // namespace zel

#pragma once
// Time as everything in the program takes it: from outside, so that a test of a time-out takes no time.

#include <chrono>

namespace zel {

using WallTime = std::chrono::sys_time<std::chrono::microseconds>;

/// The wall clock and the only way to sleep. Safe to use from several threads.
class Clock {
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual WallTime now() const = 0;
    virtual void sleep(std::chrono::microseconds duration) = 0;
};

/// The computer's own clock.
class SystemClock final : public Clock {
public:
    [[nodiscard]] WallTime now() const override;
    void sleep(std::chrono::microseconds duration) override;
};

} // namespace zel

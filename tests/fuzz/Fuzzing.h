#pragma once
// What the fuzz targets share. Each is one function of the input's bytes that aborts where a property does
// not hold; libFuzzer calls it, and keeps the input.

#include "store/Clock.h"
#include "store/Records.h"

#include <QByteArray>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace zel::fuzz {

inline void require(bool holds, const char* property) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", property);
    std::abort();
}

inline QByteArray bytesOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)};
}

/// No log, one time zone, the same hashes in each run.
void prepare();

/// Every record as text, in the order in which the program shows them.
[[nodiscard]] std::string textOf(const Records& records);

/// Stands still but for sleeps; a short one lasts 50 ms, so that a wait of minutes is over soon.
class QuickClock final : public Clock {
public:
    [[nodiscard]] WallTime now() const override { return current; }
    void sleep(std::chrono::microseconds duration) override {
        current += std::max<std::chrono::microseconds>(duration, std::chrono::milliseconds{50});
    }

private:
    WallTime current = std::chrono::sys_days{std::chrono::year{2026} / 11 / 21} + std::chrono::hours{8};
};

} // namespace zel::fuzz

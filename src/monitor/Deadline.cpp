#include "monitor/Deadline.h"

namespace zel {

Deadline::Deadline(const Clock& wallClock, std::chrono::microseconds longest)
    : clock(wallClock), limit(longest), start(clock.now()), lastAsked(start) {}

bool Deadline::passed() {
    const WallTime now = clock.now();
    if (now < lastAsked - std::chrono::seconds{1}) start = now;
    lastAsked = now;
    return now - start > limit;
}

void Deadline::restart() { lastAsked = start = clock.now(); }

} // namespace zel

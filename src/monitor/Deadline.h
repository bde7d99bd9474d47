#pragma once

#include "store/Clock.h"

namespace zel {

/// A time limit by the wall clock. Should that be set back by more than a second meanwhile, the limit starts
/// anew, so that no wait lasts for ever.
class Deadline {
public:
    Deadline(const Clock& wallClock, std::chrono::microseconds longest);
    /// More than the limit has gone by. To be asked at least once a second.
    [[nodiscard]] bool passed();
    void restart();

private:
    const Clock& clock;
    std::chrono::microseconds limit;
    WallTime start;
    WallTime lastAsked;
};

} // namespace zel

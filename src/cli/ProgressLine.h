#pragma once

#include "cli/Surroundings.h"

#include <chrono>
#include <optional>

namespace zel::cli {

/// How far a download is: one line kept up to date on a terminal, elsewhere a line now and then.
class ProgressLine {
public:
    explicit ProgressLine(Surroundings& surroundings) : around(surroundings) {}
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// Never goes back: a repeated try shows when it is further than the one before.
    void show(int total, int done);
    /// That nothing comes, how long that may still last, and that it can be cancelled.
    void waiting(std::chrono::seconds left);

private:
    Surroundings& around;
    /// The one line of a terminal, in the place of what it held.
    void put(const QString& text);

    int highest = -1;
    bool isLineOpen = false;
    std::optional<std::chrono::seconds> lastTold; ///< elsewhere the next line is due after half of this
    int nextLine = 0;                             ///< from how many records on the next line is due
};

} // namespace zel::cli

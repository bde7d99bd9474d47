#pragma once

#include "cli/Surroundings.h"

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

private:
    Surroundings& around;
    int highest = -1;
    int nextLine = 0; ///< from how many records on the next line is due
};

} // namespace zel::cli

#pragma once

namespace zel {

/// Runs the program with its window until the user quits.
/// Arguments: --simulated-monitor[=FILE] attaches the monitor in software instead of the USB one;
/// --demonstration does that over data of its own (Demonstration.h);
/// --reset-view forgets how the window was left.
/// \return the exit status: 0, 1 when it cannot start, 2 wrong usage
[[nodiscard]] int runApplication(int argc, char** argv);

} // namespace zel

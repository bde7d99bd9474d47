#pragma once

namespace zel::cli {

/// True when the arguments name a job to be done without a window, or ask for help or the version.
[[nodiscard]] bool isCommand(int argc, char** argv);

/// Does the job. \return 0 done, 1 failed (the reason on standard error), 2 wrong usage
[[nodiscard]] int run(int argc, char** argv);

} // namespace zel::cli

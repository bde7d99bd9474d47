#pragma once
// Those jobs of `zel readings` that change the data file.

#include "cli/Command.h"

namespace zel::cli {

[[nodiscard]] QList<QCommandLineOption> readingChangeOptions();
/// Whether one of the jobs is asked for; the readings are listed otherwise.
[[nodiscard]] bool asksForReadingChange(const Request& request);
[[nodiscard]] CommandResult changeReadings(const Request& request, Surroundings& around);

} // namespace zel::cli

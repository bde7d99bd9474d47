#pragma once
// What 'zel import' is told about tables of readings.

#include "cli/Command.h"
#include "store/ReadingTable.h"

#include <tl/expected.hpp>

namespace zel::cli {

[[nodiscard]] QList<QCommandLineOption> tableOptions();
/// What they ask for; wrong usage for options that do not go together.
[[nodiscard]] tl::expected<TableImport, Failure> tableImportOf(const Request& request);

} // namespace zel::cli

#pragma once
// What all exports have in common: the folder, --force, and what is printed of each file.

#include "cli/Command.h"
#include "store/ExportFile.h"

namespace zel::cli {

/// The folder that the command was given, if there is one of that name.
[[nodiscard]] tl::expected<QString, Failure> folderOf(const Request& request);
/// By --force.
[[nodiscard]] Replace replaceOf(const Request& request);
/// Why a file was not written, in words, also how it would be.
[[nodiscard]] QString reason(const StoreError& error);
/// The line for a file that was written.
[[nodiscard]] QString written(const QString& folder, const QString& ID, const QString& extension);

} // namespace zel::cli

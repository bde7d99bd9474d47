#pragma once

#include "store/Backups.h"

namespace zel {

/// What is in the copy at \p path, wherever it lies; the error when it cannot be read.
[[nodiscard]] tl::expected<BackupContent, StoreError> contentOfCopy(const QString& path);

} // namespace zel

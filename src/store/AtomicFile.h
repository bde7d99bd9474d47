#pragma once

#include "store/StoreError.h"

#include <QByteArray>
#include <QString>

namespace zel {

/// Replaces the file's content whole or not at all: a temporary file beside it is written, flushed to the
/// disk and renamed over it, and the folder is flushed too, so that a power cut after success loses nothing.
/// Symbolic links are followed, permissions kept; a new file is for its owner alone (0600).
[[nodiscard]] StoreResult replaceFile(const QString& path, const QByteArray& content);

/// The whole file.
[[nodiscard]] tl::expected<QByteArray, StoreError> readFile(const QString& path);

} // namespace zel

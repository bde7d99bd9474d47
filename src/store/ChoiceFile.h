#pragma once
// A small file with what somebody chose: one JSON object, which is read whole or not at all.

#include "store/StoreError.h"

#include <QJsonObject>

#include <optional>

namespace zel {

/// None where there is no such file. One that is there, and is no object of at most 64 KiB, is notReadable.
[[nodiscard]] tl::expected<std::optional<QJsonObject>, StoreError> readChoiceFile(const QString& path);
/// Replaces it whole.
[[nodiscard]] StoreResult writeChoiceFile(const QString& path, const QJsonObject& choice);

} // namespace zel

#pragma once

#include <QString>

namespace zel {

/// A control's words as they are said: without the mark of its key, and without a key that stands behind them
/// in brackets, as languages have it that write no letters.
[[nodiscard]] QString withoutMnemonic(const QString& text);

} // namespace zel

#pragma once

#include <QPageSize>
#include <QString>

namespace zel {

/// The locale of the paper that the environment asks for, as the desktop's other programs read it; empty for
/// none.
[[nodiscard]] QString paperLocale();

/// A4 or Letter, as is usual where people live whose locale is called so, such as "es_MX.UTF-8".
[[nodiscard]] QPageSize usualPaper(const QString& locale);

} // namespace zel

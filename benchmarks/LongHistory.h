#pragma once

#include <QByteArray>

namespace zel {

/// A data file of so many patients, the first of whom ("P00000") has all \p readings, eleven a day up to
/// 20/03/2026, with a comment of three days and a download every month. 340 bytes a reading.
[[nodiscard]] QByteArray makeLongHistory(int patients, int readings);

} // namespace zel

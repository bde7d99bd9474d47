#pragma once
// Which values a view marks as high, and how.

#include "store/ReadingModel.h"
#include "store/ViewLimits.h"

#include <QString>

namespace zel {

/// Stands behind a value that is high, which is bold, too: neither colour nor weight alone tells it.
inline constexpr QChar highMark = u'\u25B2';

/// At the limit or above it; never by a limit of 0, nor of a reading that is left out.
[[nodiscard]] bool isSysHigh(const ReadingModel& reading, const LimitPair& limits);
[[nodiscard]] bool isDiaHigh(const ReadingModel& reading, const LimitPair& limits);

/// "135/85 mmHg", or the one limit that there is; empty for none.
[[nodiscard]] QString describe(const LimitPair& limits);
/// What the mark means, or that nothing is marked.
[[nodiscard]] QString describeHighMark(const LimitPair& limits);

} // namespace zel

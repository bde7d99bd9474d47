#pragma once

#include "analysis/ReadingCount.h"
#include "store/SettingModel.h"

namespace zel {

/// How many of the counted readings keep the limits of the settings, at the limit or below it; a limit of 0
/// is none.
struct LimitShares {
    int total = 0;
    int keepBoth = 0;
    int sysTooHigh = 0; ///< only the systolic value is above its limit
    int diaTooHigh = 0; ///< only the diastolic value
    int bothTooHigh = 0;
};

/// Of the readings that \p rule counts: the same ones as the figures beside them.
[[nodiscard]] LimitShares limitShares(const ReadingList& readings, const ReadingSelection& selection,
                                      CountRule rule, const SettingModel& settings);

/// "34 %", halves upwards; "< 1 %" and "> 99 %" where none and all would not be true. \p total: not 0.
[[nodiscard]] QString percentText(int count, int total);
/// "12 (34 %)"; without percent for a total of 0.
[[nodiscard]] QString shareText(int count, int total);

} // namespace zel

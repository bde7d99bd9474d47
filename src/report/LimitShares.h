#pragma once

#include "analysis/ReadingSelection.h"
#include "store/RecordLinks.h"
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

/// Of the readings that histogram and correlation count.
[[nodiscard]] LimitShares limitShares(const ReadingList& readings, const ReadingSelection& selection,
                                      const SettingModel& settings);

/// "12 (34 %)"; without percent for a total of 0.
[[nodiscard]] QString shareText(int count, int total);

} // namespace zel

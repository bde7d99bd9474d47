#pragma once

#include "analysis/Trend.h"
#include "app/graph/BPInfoView.h"

namespace zel {

/// The figures of the step that begins on \p begin, of each series that has readings there: its days as far
/// as they lie in \p period, readings, medians and bands.
[[nodiscard]] ReadingInfo trendInfo(const TrendSeriesList& trend, DayNumber begin, const Period& period,
                                    const SettingModel& setting);

} // namespace zel

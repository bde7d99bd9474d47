#pragma once

#include "analysis/DisplayPeriod.h"
#include "report/ReportSource.h"
#include "store/Clock.h"
#include "store/DataStore.h"

#include <optional>

namespace zel {

/// What the pages show on the screen, so that paper shows it, too.
struct ScreenViews {
    int drawViewState = 0; ///< of the chart page
    bool getShowMam = true;
    bool getShowPad = true;
    bool isMonitorAFib = false; ///< the attached monitor reports atrial fibrillation
    bool trendApart = false;    ///< the trend has mornings and evenings as lines of their own
    ChartStyle lowerChart = DrawPulse;
    ChartStyle bloodChart = DrawBlood;
};

/// Everything that the report of the current patient shows; none if there is no patient. Refers to the
/// store's records, and so is good until the store's next load.
[[nodiscard]] std::optional<ReportSource> printSource(const DataStore& store, const DisplayPeriod& period,
                                                      const Clock& clock, const ScreenViews& views);

} // namespace zel

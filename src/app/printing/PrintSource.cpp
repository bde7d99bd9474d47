#include "app/printing/PrintSource.h"

namespace zel {

std::optional<ReportSource> printSource(const DataStore& store, const DisplayPeriod& period,
                                        const Clock& clock, const ScreenViews& views) {
    auto source = reportSource(store, period.selection(), clock);
    if (!source) return {};
    source->weekRule = period.getWeekRule();
    source->weekEnd = period.getWeekEnd();
    source->getShowMam = views.getShowMam;
    source->getShowPad = views.getShowPad;
    source->getIsAfib = source->rows.isAFib || (!source->rows.isPad && views.isMonitorAFib);
    source->trendApart = views.trendApart;
    source->lowerChart = views.lowerChart;
    source->bloodChart = views.bloodChart;
    return source;
}

} // namespace zel

#include "app/printing/PrintSource.h"

namespace zel {

std::optional<ReportSource> printSource(const DataStore& store, const DisplayPeriod& period,
                                        const Clock& clock, const ScreenViews& views) {
    const PatientModel* patient = store.getPatientByID(store.getCurrentID());
    if (!patient) return {};
    const ReadingSelection selection = period.selection();
    ReadingRows rows = assembleReadingRows(
        {store.getReadingForCurID(), store.getCommentForCurID(), store.getTrasferLogForCurID(), selection},
        LocalZone{});
    const bool isAFib = rows.isAFib || (!rows.isPad && views.isMonitorAFib);
    return ReportSource{.patient = *patient,
                        .readings = store.getReadingForCurID(),
                        .comments = store.getCommentForCurID(),
                        .downloads = store.getTrasferLogForCurID(),
                        .settings = store.getSetting(),
                        .selection = selection,
                        .rows = std::move(rows),
                        .now = std::chrono::floor<Instant::duration>(clock.now()),
                        .getShowMam = views.getShowMam,
                        .getShowPad = views.getShowPad,
                        .getIsAfib = isAFib,
                        .lowerChart = views.lowerChart,
                        .bloodChart = views.bloodChart};
}

} // namespace zel

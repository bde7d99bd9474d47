#include "report/ReportSource.h"

namespace zel {

std::optional<ReportSource> reportSource(const DataStore& store, const ReadingSelection& selection,
                                         const Clock& clock) {
    const PatientModel* patient = store.getPatientByID(store.getCurrentID());
    if (!patient) return {};
    ReadingRows rows = assembleReadingRows(
        {store.getReadingForCurID(), store.getCommentForCurID(), store.getTrasferLogForCurID(), selection},
        LocalZone{});
    const bool isAFib = rows.isAFib;
    return ReportSource{.patient = *patient,
                        .readings = store.getReadingForCurID(),
                        .comments = store.getCommentForCurID(),
                        .downloads = store.getTrasferLogForCurID(),
                        .settings = store.getSetting(),
                        .selection = selection,
                        .rows = std::move(rows),
                        .highFrom = store.viewLimits().limits(),
                        .now = std::chrono::floor<Instant::duration>(clock.now()),
                        .isDemonstration = store.isDemonstration(),
                        .getIsAfib = isAFib};
}

} // namespace zel

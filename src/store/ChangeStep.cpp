#include "store/ChangeStep.h"

#include <algorithm>
#include <utility>

namespace zel {

QString describe(const StepName& name) {
    const auto readings = static_cast<int>(name.count);
    switch (name.kind) {
    case StepKind::addPatient: return qtTrId("stepAddPatient").arg(name.subject);
    case StepKind::editPatient: return qtTrId("stepEditPatient").arg(name.subject);
    case StepKind::deletePatient: return qtTrId("stepDeletePatient").arg(name.subject);
    case StepKind::addComment: return qtTrId("stepAddComment").arg(name.subject);
    case StepKind::editComment: return qtTrId("stepEditComment").arg(name.subject);
    case StepKind::deleteComment: return qtTrId("stepDeleteComment").arg(name.subject);
    case StepKind::importPatients: return qtTrId("stepImport").arg(name.subject);
    case StepKind::excludeReadings: return qtTrId("stepExcludeReadings", readings).arg(name.subject);
    case StepKind::includeReadings: return qtTrId("stepIncludeReadings", readings).arg(name.subject);
    case StepKind::addReading: return qtTrId("stepAddReading").arg(name.subject);
    case StepKind::editReading: return qtTrId("stepEditReading").arg(name.subject);
    case StepKind::deleteReadings: return qtTrId("stepDeleteReadings", readings).arg(name.subject);
    case StepKind::changeSettings: return qtTrId("stepSettings");
    }
    return {};
}

/// Backwards, so that of elements that stood side by side each finds the one that it stood behind.
ChangeStep invert(const ChangeStep& step) {
    ChangeStep inverse = step;
    std::ranges::reverse(inverse.changes);
    for (ElementChange& change : inverse.changes)
        std::swap(change.before, change.after);
    return inverse;
}

} // namespace zel

#include "store/PressureLimits.h"

namespace zel {

QString describe(const LimitRange& range) { return qtTrId("SettingLimit").arg(range.least).arg(range.most); }

std::optional<LimitProblem> limitProblem(std::uint32_t systolic, std::uint32_t diastolic) {
    if (!systolicLimits.takes(systolic)) return LimitProblem::systolic;
    if (!diastolicLimits.takes(diastolic)) return LimitProblem::diastolic;
    if (systolic != 0 && diastolic >= systolic) return LimitProblem::order;
    return std::nullopt;
}

QString describe(LimitProblem problem) {
    switch (problem) {
    case LimitProblem::systolic: return qtTrId("LimitSystolic").arg(describe(systolicLimits));
    case LimitProblem::diastolic: return qtTrId("LimitDiastolic").arg(describe(diastolicLimits));
    case LimitProblem::order: break;
    }
    return qtTrId("LimitOrder");
}

} // namespace zel

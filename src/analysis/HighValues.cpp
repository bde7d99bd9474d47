#include "analysis/HighValues.h"

namespace zel {

namespace {

bool isHigh(const ReadingModel& reading, std::uint32_t value, std::uint32_t limit) {
    return limit > 0 && value >= limit && !reading.isExcluded();
}

} // namespace

bool isSysHigh(const ReadingModel& reading, const LimitPair& limits) {
    return isHigh(reading, reading.sys, limits.sys);
}

bool isDiaHigh(const ReadingModel& reading, const LimitPair& limits) {
    return isHigh(reading, reading.dia, limits.dia);
}

QString describe(const LimitPair& limits) {
    if (limits.sys > 0 && limits.dia > 0) return qtTrId("limitsBoth").arg(limits.sys).arg(limits.dia);
    if (limits.sys > 0) return qtTrId("limitSysAlone").arg(limits.sys);
    return limits.dia > 0 ? qtTrId("limitDiaAlone").arg(limits.dia) : QString();
}

QString describeHighMark(const LimitPair& limits) {
    const QString words = describe(limits);
    return words.isEmpty() ? qtTrId("noHighMark") : qtTrId("highMark").arg(highMark).arg(words);
}

} // namespace zel

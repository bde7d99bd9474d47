#include "analysis/BeforeAndSince.h"

#include <QStringList>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr DayNumber daysBefore = 14;
constexpr DayNumber mostDaysSince = 28;

/// The last day before another comment begins.
DayNumber lastDaySince(const CommentList& comments, DayNumber begin) {
    const auto next =
        std::ranges::upper_bound(comments, begin, {}, [](const auto& each) { return each->beginDay; });
    const DayNumber last = begin + mostDaysSince - 1;
    return next == comments.end() ? last : std::min(last, (*next)->beginDay - 1);
}

SpanMeans spanOf(const DayMeans& means, DayNumber first, DayNumber last) {
    return {first,
            last,
            means.between(first, last),
            means.excludedBetween(first, last),
            means.unmeasuredBetween(first, last),
            means.ofOtherZoneBetween(first, last)};
}

QString shown(const PressureMeans& means) {
    return u"%1/%2 (%3)"_s.arg(means.sys.rounded()).arg(means.dia.rounded()).arg(means.count());
}

QString difference(const ExactMean& before, const ExactMean& since) {
    const auto change =
        static_cast<std::int64_t>(since.rounded()) - static_cast<std::int64_t>(before.rounded());
    return (change > 0 ? u"+"_s : QString()) + QString::number(change);
}

QString compared(const PressureMeans& before, const PressureMeans& since) {
    return qtTrId("beforeAndSince")
        .arg(shown(before), shown(since),
             difference(before.sys, since.sys) + u'/' + difference(before.dia, since.dia));
}

QString fewReadings(const PressureMeans& before, const PressureMeans& since) {
    // Where there is none at all, that is told already.
    const auto isFew = [](const PressureMeans& side) {
        return 0 < side.count() && side.count() < enoughReadings;
    };
    const bool isFewBefore = isFew(before);
    const bool isFewSince = isFew(since);
    if (isFewBefore && isFewSince) return qtTrId("fewOnBothSides").arg(enoughReadings);
    if (isFewBefore) return qtTrId("fewBefore").arg(enoughReadings);
    return isFewSince ? qtTrId("fewSince").arg(enoughReadings) : QString();
}

} // namespace

BeforeAndSince calcBeforeAndSince(const DayMeans& means, const CommentList& comments,
                                  const CommentModel& comment) {
    const DayNumber begin = comment.beginDay;
    if (isUndatedDay(begin)) return {};
    return {spanOf(means, begin - daysBefore, begin - 1),
            spanOf(means, begin, lastDaySince(comments, begin))};
}

namespace {

/// Of one side at least.
QString describeSides(const PressureMeans& before, const PressureMeans& since) {
    if (before.count() == 0) return qtTrId("noneBefore").arg(shown(since));
    if (since.count() == 0) return qtTrId("noneSince").arg(shown(before));
    return compared(before, since);
}

QString describeMeans(const BeforeAndSince& change) {
    const PressureMeans& before = change.before.means;
    const PressureMeans& since = change.since.means;
    if (before.count() + since.count() == 0) return qtTrId("noneBeforeOrSince");
    const QString few = fewReadings(before, since);
    return describeSides(before, since) + (few.isEmpty() ? QString() : qtTrId("; ") + few);
}

} // namespace

QString describe(const BeforeAndSince& change) {
    if (change.since.begin == noDay) return {};
    const int excluded = change.before.excluded + change.since.excluded;
    const int unmeasured = change.before.unmeasured + change.since.unmeasured;
    const int ofOtherZone = change.before.ofOtherZone + change.since.ofOtherZone;
    QStringList parts{describeMeans(change)};
    if (excluded > 0) parts += qtTrId("excludedOfDays", excluded);
    if (unmeasured > 0) parts += qtTrId("unmeasuredOfDays", unmeasured);
    if (ofOtherZone > 0) parts += qtTrId("otherZoneOfDays", ofOtherZone);
    return parts.join(qtTrId("; "));
}

} // namespace zel

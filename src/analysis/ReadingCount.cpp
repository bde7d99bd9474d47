#include "analysis/ReadingCount.h"

#include <QStringList>

namespace zel {

namespace {

/// Of a reading that the rule does not take. What is excluded counts nowhere, whatever the half of the day.
int ReadingCount::*reasonFor(const ReadingModel& reading, const ReadingSelection& selection, CountRule rule) {
    const bool isMarked = hasUndatedMarker(reading);
    if (isMarked && !selection.includeUndated) return &ReadingCount::undated;
    if (isMarked && reading.isExcluded()) return &ReadingCount::excluded;
    if (reading.isUndated()) return &ReadingCount::withoutDate;
    if (!selection.period.contains(*reading.ReadingDate)) return &ReadingCount::outsidePeriod;
    // The list has excluded ones, too.
    if (rule != isListed && reading.isExcluded()) return &ReadingCount::excluded;
    if (MatchedDataType(selection.view, reading.isPMData)) return &ReadingCount::unmeasured;
    return reading.isPMData ? &ReadingCount::fromNoon : &ReadingCount::beforeNoon;
}

} // namespace

ReadingCount countReadings(const ReadingList& readings, const ReadingSelection& selection, CountRule rule) {
    ReadingSelection counted = selection;
    if (rule == isInChart || rule == isInTrend)
        counted.includeUndated = false; // why the chart leaves them out, wanted or not
    ReadingCount count;
    for (const ReadingModel& reading : readings) {
        const bool isTaken = rule(reading, counted);
        ++(count.*(isTaken ? &ReadingCount::counted : reasonFor(reading, counted, rule)));
        if (isTaken && reading.isExcluded()) ++count.listedExcluded;
    }
    return count;
}

QString describeLeftOut(const ReadingCount& count) {
    QStringList reasons;
    if (count.outsidePeriod > 0) reasons += qtTrId("leftOutsidePeriod", count.outsidePeriod);
    if (count.beforeNoon > 0) reasons += qtTrId("leftBeforeNoon", count.beforeNoon);
    if (count.fromNoon > 0) reasons += qtTrId("leftFromNoon", count.fromNoon);
    if (count.excluded > 0) reasons += qtTrId("leftExcluded", count.excluded);
    if (count.unmeasured > 0) reasons += qtTrId("leftUnmeasured", count.unmeasured);
    if (count.undated > 0) reasons += qtTrId("leftUndated", count.undated);
    if (count.withoutDate > 0) reasons += qtTrId("leftWithoutDate", count.withoutDate);
    return reasons.isEmpty() ? QString() : qtTrId("leftOut").arg(reasons.join(qtTrId(", ")));
}

QString describe(const ReadingCount& count) {
    QString counted = qtTrId("readingCount", count.counted);
    if (count.listedExcluded > 0) counted += qtTrId("listedExcluded", count.listedExcluded);
    const QString left = describeLeftOut(count);
    return left.isEmpty() ? counted : counted + qtTrId("; ") + left;
}

} // namespace zel

#include "store/CsvText.h"
#include "store/ReadingTable.h"
#include "store/TableColumns.h"

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

std::vector<const ReadingModel*> tableOrder(const ReadingList& readings) {
    std::vector<const ReadingModel*> sorted(readings.size());
    std::ranges::transform(readings, sorted.begin(), [](const ReadingModel& reading) { return &reading; });
    std::ranges::stable_sort(sorted, {}, [](const ReadingModel* reading) {
        return reading->isUndated() ? Date{} : reading->ReadingDate;
    });
    return sorted;
}

QStringList commentCells(const CommentModel* comment) {
    if (!comment) return {QString{}, QString{}, QString{}, QString{}};
    const QString day = u"yyyy-MM-dd"_s;
    return {safeText(comment->comment), dayText(comment->beginDay, day), dayText(comment->endDay, day),
            wordOf(comment->degree, colourWords())};
}

QStringList readingCells(const ReadingModel& reading, const LocalZone& zone) {
    QStringList cells{safeText(reading.RecID),
                      reading.isUndated() ? QString{}
                                          : tableTimeText(*reading.ReadingDate, reading.utcOffset, zone)};
    for (const std::uint32_t value : {reading.sys, reading.dia, reading.pulse, reading.map, reading.pp})
        cells.append(QString::number(value));
    return cells << wordOf(reading.mam, mamWords()) << wordOf(reading.Arrhythmia, arrhythmiaWords())
                 << (reading.isManual ? u"manual"_s : u"monitor"_s)
                 << (reading.isExcluded() ? u"yes"_s : u"no"_s) << safeText(reading.exclusion);
}

} // namespace

QByteArray tableHeader() { return (csvLine(tableTitles()) + u"\r\n"_s).toUtf8(); }

QByteArray tableLines(const PatientModel& patient, const ReadingList& readings) {
    const LocalZone zone;
    const QStringList names{safeText(patient.ID), safeText(patient.FamilyName), safeText(patient.GivenNames)};
    QByteArray lines;
    for (const ReadingModel* reading : tableOrder(readings))
        lines += (csvLine(names + readingCells(*reading, zone) + commentCells(reading->comment)) + u"\r\n"_s)
                     .toUtf8();
    return lines;
}

} // namespace zel

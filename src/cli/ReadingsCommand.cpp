#include "analysis/ReadingRows.h"
#include "cli/Commands.h"
#include "cli/Csv.h"
#include "cli/OpenStore.h"
#include "cli/PeriodOptions.h"
#include "cli/Usage.h"
#include "store/RecordXml.h"

#include <QTime>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype columns = 9;

QStringList fields(const ReadingModel& reading) {
    const bool undated = reading.isUndated();
    QStringList fields{undated ? u"n.a"_s : dayText(reading.day, u"yyyy-MM-dd"_s),
                       undated ? u"--:--"_s
                               : QTime(0, 0).addSecs(reading.minuteOfDay * 60).toString(u"HH:mm"_s)};
    for (const std::uint32_t number : {reading.sys, reading.dia, reading.pulse, reading.map, reading.pp})
        fields += toDecimal(number);
    return fields << reading.getMamStr() << reading.getPadStr();
}

QString line(const ReadingRow& row) {
    if (!row.isNA()) return csvLine(fields(*row.reading));
    return csvLine(QStringList(dayText(row.day, u"yyyy-MM-dd"_s)) + QStringList(columns - 1, u"n.a."_s));
}

/// Readings that have not even the monitor's mark for no date; no view shows them.
QStringList withoutAnyDate(const ReadingList& readings) {
    QStringList lines;
    for (const ReadingModel& reading : readings)
        if (reading.isUndated() && !hasUndatedMarker(reading)) lines += csvLine(fields(reading));
    return lines;
}

CommandResult runReadings(const Request& request, Surroundings& around) {
    const auto ID = requiredValue(request, u"patient"_s);
    if (!ID) return tl::unexpected(ID.error());
    const auto days = dayRange(request);
    if (!days) return tl::unexpected(days.error());
    const auto view = viewOption(request);
    if (!view) return tl::unexpected(view.error());
    const OpenedStore store = openStore(around);
    if (!store) return tl::unexpected(store.error());
    return checkPatient(**store, *ID).map([&] {
        (*store)->setCurrentID(*ID);
        const ReadingList& readings = (*store)->getReadingForCurID();
        const bool isAll = days->isOpen() && *view == ViewSelection::viewAll;
        const ReadingSelection selection{periodOf(*days, readings, around.clock), *view,
                                         isAll || request.options.isSet(u"undated"_s)};
        const ReadingRowSource source{readings, (*store)->getCommentForCurID(),
                                      (*store)->getTrasferLogForCurID(), selection};
        QStringList lines(u"date,time,sys,dia,pulse,map,pp,mam,arrhythmia"_s);
        if (isAll) lines += withoutAnyDate(readings);
        const ReadingRows list = assembleReadingRows(source, LocalZone{});
        for (const ReadingRow& row : list.rows)
            lines += line(row);
        printLine(around.out, lines.join(u'\n'));
        if (list.isCut) printLine(around.err, describeCut(list));
    });
}

} // namespace

Command readingsCommand() {
    return {"readings", [] { return qtTrId("CliHelpReadings"); },
            [] {
                return QList{valued(u"patient"_s), valued(u"from"_s), valued(u"to"_s),   valued(u"last"_s),
                             flag(u"am"_s),        flag(u"pm"_s),     flag(u"undated"_s)};
            },
            runReadings};
}

} // namespace zel::cli

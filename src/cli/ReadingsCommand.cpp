#include "analysis/ReadingRows.h"
#include "cli/Commands.h"
#include "cli/OpenStore.h"
#include "cli/PeriodOptions.h"
#include "cli/ReadingChanges.h"
#include "cli/Usage.h"
#include "store/CsvText.h"
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

/// As stored, whatever the language.
QString reasonInFile(const ReadingModel& reading) {
    const QString reason = reading.exclusion.simplified();
    return reading.isExcluded() && reason.isEmpty() ? u"no reason given"_s : reason;
}

/// The lines of one call, with the columns that are asked for.
class Lines {
public:
    explicit Lines(bool withNumbers) : hasNumbers(withNumbers) {
        QString titles = u"date,time,sys,dia,pulse,map,pp,mam,arrhythmia"_s;
        if (hasNumbers) titles += u",record,excluded"_s;
        lines += titles;
    }
    void add(const ReadingModel& reading) {
        QStringList all = fields(reading);
        if (hasNumbers) all << reading.RecID << reasonInFile(reading);
        lines += csvLine(all);
        if (reading.isExcluded()) ++excluded;
    }
    void add(const ReadingRow& row) {
        if (!row.isNA()) return add(*row.reading);
        QStringList all =
            QStringList(dayText(row.day, u"yyyy-MM-dd"_s)) + QStringList(columns - 1, u"n.a."_s);
        if (hasNumbers) all << QString() << QString();
        lines += csvLine(all);
    }
    void print(Surroundings& around) const {
        printLine(around.out, lines.join(u'\n'));
        if (excluded > 0) printLine(around.err, qtTrId("CliReadingsExcluded", excluded));
    }

private:
    bool hasNumbers;
    int excluded = 0;
    QStringList lines;
};

/// Readings that have not even the monitor's mark for no date; no view shows them.
void addWithoutAnyDate(Lines& lines, const ReadingList& readings) {
    for (const ReadingModel& reading : readings)
        if (reading.isUndated() && !hasUndatedMarker(reading)) lines.add(reading);
}

CommandResult listReadings(const Request& request, Surroundings& around) {
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
        Lines lines(request.options.isSet(u"numbers"_s));
        if (isAll) addWithoutAnyDate(lines, readings);
        const ReadingRows list = assembleReadingRows(source, LocalZone{});
        for (const ReadingRow& row : list.rows)
            lines.add(row);
        lines.print(around);
        if (list.isCut) printLine(around.err, describeCut(list));
    });
}

CommandResult runReadings(const Request& request, Surroundings& around) {
    return asksForReadingChange(request) ? changeReadings(request, around) : listReadings(request, around);
}

} // namespace

Command readingsCommand() {
    return {"readings", [] { return qtTrId("CliHelpReadings"); },
            [] {
                return QList{valued(u"patient"_s), valued(u"from"_s), valued(u"to"_s),    valued(u"last"_s),
                             flag(u"am"_s),        flag(u"pm"_s),     flag(u"undated"_s), flag(u"numbers"_s)}
                       + readingChangeOptions();
            },
            runReadings};
}

} // namespace zel::cli

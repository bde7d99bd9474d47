#include "cli/Commands.h"
#include "cli/Csv.h"
#include "cli/OpenStore.h"
#include "cli/Usage.h"
#include "store/RecordXml.h"

#include <QDate>

#include <algorithm>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

/// The days asked for, both included; either may be left open.
struct Period {
    std::optional<QDate> from;
    std::optional<QDate> to;
};

tl::expected<std::optional<QDate>, Failure> dayOption(const Request& request, const QString& option) {
    if (!request.options.isSet(option)) return std::nullopt;
    const QString text = request.options.value(option);
    const QDate day = QDate::fromString(text, u"yyyy-MM-dd"_s);
    if (day.isValid() && day.toString(u"yyyy-MM-dd"_s) == text) return day;
    return wrongUsage(qtTrId("CliBadDate").arg(option, text));
}

tl::expected<Period, Failure> periodOf(const Request& request) {
    const auto from = dayOption(request, u"from"_s);
    if (!from) return tl::unexpected(from.error());
    const auto to = dayOption(request, u"to"_s);
    if (!to) return tl::unexpected(to.error());
    if (*from && *to && **from > **to) return wrongUsage(qtTrId("CliFromAfterTo"));
    return Period{*from, *to};
}

/// A reading without a date belongs to no period; it is listed when none is asked for.
bool isIn(const Period& period, const ReadingModel& reading) {
    if (!period.from && !period.to) return true;
    if (reading.isUndated()) return false;
    const QDate day = QDate(1970, 1, 1).addDays(reading.day);
    return (!period.from || *period.from <= day) && (!period.to || day <= *period.to);
}

QString line(const ReadingModel& reading) {
    const bool undated = reading.isUndated();
    QStringList fields{undated ? u"n.a"_s : DateToStr(reading.ReadingDate, u"yyyy-MM-dd"_s),
                       undated ? u"--:--"_s : DateToStr(reading.ReadingDate, u"HH:mm"_s)};
    for (const std::uint32_t number : {reading.sys, reading.dia, reading.pulse, reading.map, reading.pp})
        fields += toDecimal(number);
    return csvLine(fields << reading.getMamStr() << reading.getPadStr());
}

void print(const ReadingList& readings, const Period& period, Surroundings& around) {
    std::vector<const ReadingModel*> listed;
    for (const ReadingModel& reading : readings)
        if (isIn(period, reading)) listed.push_back(&reading);
    std::ranges::stable_sort(listed, {}, [](const ReadingModel* reading) { return reading->ReadingDate; });
    QStringList lines(u"date,time,sys,dia,pulse,map,pp,mam,arrhythmia"_s);
    for (const ReadingModel* reading : listed)
        lines += line(*reading);
    printLine(around.out, lines.join(u'\n'));
}

CommandResult runReadings(const Request& request, Surroundings& around) {
    const auto ID = requiredValue(request, u"patient"_s);
    if (!ID) return tl::unexpected(ID.error());
    const auto period = periodOf(request);
    if (!period) return tl::unexpected(period.error());
    const OpenedStore store = openStore(around);
    if (!store) return tl::unexpected(store.error());
    return checkPatient(**store, *ID).map([&] {
        (*store)->setCurrentID(*ID);
        print((*store)->getReadingForCurID(), *period, around);
    });
}

} // namespace

Command readingsCommand() {
    return {"readings", [] { return qtTrId("CliHelpReadings"); },
            [] {
                return QList{valued(u"patient"_s), valued(u"from"_s), valued(u"to"_s)};
            },
            runReadings};
}

} // namespace zel::cli

#include "analysis/ReadingCount.h"
#include "analysis/Statistic.h"
#include "cli/Commands.h"
#include "cli/OpenStore.h"
#include "cli/PeriodOptions.h"
#include "cli/Usage.h"

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

QString line(const QString& name, const MeasureStatistic& measure) {
    return u"%1: %2 %3 %4"_s.arg(name, maxString(static_cast<std::uint32_t>(measure.average)),
                                 minString(measure.minimum), maxString(measure.maximum));
}

void print(const StatisticFigures& figures, bool showMap, Surroundings& around) {
    const QStringList lines{line(u"sys"_s, figures.sys), line(u"dia"_s, figures.dia),
                            line(u"pulse"_s, figures.pulse),
                            line(showMap ? u"map"_s : u"pp"_s, figures.mapOrPP)};
    printLine(around.out, lines.join(u'\n'));
}

CommandResult runStatistics(const Request& request, Surroundings& around) {
    const auto ID = requiredValue(request, u"patient"_s);
    if (!ID) return tl::unexpected(ID.error());
    const auto days = dayRange(request);
    if (!days) return tl::unexpected(days.error());
    const OpenedStore store = openStore(around);
    if (!store) return tl::unexpected(store.error());
    return checkPatient(**store, *ID).map([&] {
        (*store)->setCurrentID(*ID);
        const ReadingList& readings = (*store)->getReadingForCurID();
        const ReadingSelection selection{.period = periodOf(*days, readings, around.clock),
                                         .includeUndated = request.options.isSet(u"undated"_s)};
        const bool showMap = (*store)->getSetting().showPPorMap != 0;
        print(calcStatistic(readings, selection, showMap), showMap, around);
        const ReadingCount count = countReadings(readings, selection, isInStatistic);
        if (!describeLeftOut(count).isEmpty()) printLine(around.err, describe(count));
    });
}

} // namespace

Command statisticsCommand() {
    return {"statistics", [] { return qtTrId("CliHelpStatistics"); },
            [] {
                return QList{valued(u"patient"_s), valued(u"from"_s), valued(u"to"_s), valued(u"last"_s),
                             flag(u"undated"_s)};
            },
            runStatistics};
}

} // namespace zel::cli

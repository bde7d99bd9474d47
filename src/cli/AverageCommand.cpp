#include "analysis/MeasuringWeek.h"
#include "cli/Commands.h"
#include "cli/OpenStore.h"
#include "cli/PeriodOptions.h"
#include "cli/RuleOption.h"
#include "cli/Usage.h"

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

QString line(const char* name, const QString& value) { return QLatin1String(name) + u": "_s + value; }

void addHalfDay(QStringList& lines, const char* name, const PressureMeans& means) {
    if (means.count() == 0) return;
    lines += line(name, means.sys.withTenths() + u'/' + means.dia.withTenths());
}

void addMeans(QStringList& lines, const MeasuringWeek& week) {
    lines += line("sys", week.all.sys.withTenths());
    lines += line("dia", week.all.dia.withTenths());
    if (week.all.pulse.count() > 0) lines += line("pulse", week.all.pulse.withTenths());
    addHalfDay(lines, "morning", week.morning);
    addHalfDay(lines, "evening", week.evening);
    const AverageRuleFacts& facts = factsOf(week.rule);
    lines += line("threshold", u"%1/%2 %3"_s.arg(facts.sysThreshold)
                                   .arg(facts.diaThreshold)
                                   .arg(week.reachesThreshold() ? u"reached"_s : u"not reached"_s));
}

QStringList linesOf(const MeasuringWeek& week) {
    QStringList lines{line("rule", QLatin1String(factsOf(week.rule).key)),
                      line("complete", week.isComplete() ? u"yes"_s : u"no"_s)};
    if (!week.isComplete()) lines += line("missing", describeMissing(week));
    lines += line("days", QString::number(week.daysUsed));
    lines += line("readings", QString::number(week.readingsUsed()));
    if (week.readingsUsed() > 0) addMeans(lines, week);
    return lines;
}

/// What is to be known beside the figures.
QStringList remarksOn(const MeasuringWeek& week) {
    QStringList remarks;
    if (week.readingsLeftOut > 0) remarks += qtTrId("CliFirstDayLeftOut", week.readingsLeftOut);
    if (week.ofOtherZone > 0) remarks += qtTrId("CliOtherZone", week.ofOtherZone);
    if (week.excluded > 0) remarks += qtTrId("CliExcludedLeftOut", week.excluded);
    if (week.excludedLater > 0) remarks += qtTrId("CliExcludedLater", week.excludedLater);
    if (week.unmeasured > 0) remarks += qtTrId("CliUnmeasured", week.unmeasured);
    return remarks;
}

/// A clock that was wrong may have made the week that nobody named.
bool isToCome(const MeasuringWeek& week, const Clock& clock) {
    return week.end > LocalZone{}.day(std::chrono::floor<std::chrono::milliseconds>(clock.now()));
}

std::optional<DayNumber> dayOf(const Date& date) {
    return date ? std::optional(LocalZone{}.day(date)) : std::nullopt;
}

CommandResult runAverage(const Request& request, Surroundings& around) {
    const auto ID = requiredValue(request, u"patient"_s);
    if (!ID) return tl::unexpected(ID.error());
    const auto rule = ruleOption(request);
    if (!rule) return tl::unexpected(rule.error());
    const auto to = dayOption(request, u"to"_s);
    if (!to) return tl::unexpected(to.error());
    const OpenedStore store = openStore(around);
    if (!store) return tl::unexpected(store.error());
    return checkPatient(**store, *ID).map([&] {
        (*store)->setCurrentID(*ID);
        const auto week = calcMeasuringWeek((*store)->getReadingForCurID(), *rule, dayOf(*to));
        printLine(around.out, linesOf(week).join(u'\n'));
        if (!*to && isToCome(week, around.clock))
            printLine(around.err, qtTrId("CliWeekToCome").arg(dayText(week.end, u"yyyy-MM-dd"_s)));
        for (const QString& remark : remarksOn(week))
            printLine(around.err, remark);
    });
}

} // namespace

Command averageCommand() {
    return {"average", [] { return qtTrId("CliHelpAverage"); },
            [] {
                return QList{valued(u"patient"_s), valued(u"rule"_s), valued(u"to"_s)};
            },
            runAverage};
}

} // namespace zel::cli

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
    lines += line("pulse", week.all.pulse.withTenths());
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
        if (week.readingsLeftOut > 0)
            printLine(around.err, qtTrId("CliFirstDayLeftOut", week.readingsLeftOut));
        if (week.ofOtherZone > 0) printLine(around.err, qtTrId("CliOtherZone", week.ofOtherZone));
        if (week.excluded > 0) printLine(around.err, qtTrId("CliExcludedLeftOut", week.excluded));
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

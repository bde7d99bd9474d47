#include "cli/Commands.h"
#include "cli/MonitorConnection.h"
#include "cli/ProgressLine.h"
#include "cli/Usage.h"

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

void printValue(Surroundings& around, const QString& key, const QString& value) {
    printLine(around.out, key + u": "_s + value);
}

QString arrhythmia(const BPMModel& model) {
    if (model.isPAD()) return u"pad"_s;
    return model.isAFib() ? u"afib"_s : u"none"_s;
}

CommandResult printID(BPMModel& model, Surroundings& around) {
    const auto ID = model.getBPMID();
    if (!ID) return failed(qtTrId("CliIDUnread").arg(describe(ID.error())));
    printValue(around, u"id"_s, *ID);
    return {};
}

CommandResult printClock(BPMModel& model, Surroundings& around) {
    const auto clock = model.readBPMDate();
    if (!clock && clock.error() == MonitorResult::clockNotSet) {
        printValue(around, u"clock"_s, u"not set"_s);
        return {};
    }
    if (!clock) return failed(qtTrId("CliClockUnread").arg(describe(clock.error())));
    printValue(around, u"clock"_s, DateToStr(*clock, u"yyyy-MM-dd HH:mm:ss"_s));
    return {};
}

CommandResult printCount(BPMModel& model, Surroundings& around) {
    ProgressLine progress(around);
    const auto count = model.getBPMCycleDataCount([&](std::chrono::seconds left) { progress.waiting(left); });
    if (!count) return failed(qtTrId("CliCountUnread").arg(describe(count.error())));
    printValue(around, u"readings"_s, QString::number(*count));
    return {};
}

CommandResult printAll(const MonitorConnection& connection, Surroundings& around) {
    printValue(around, u"model"_s, connection.version);
    printValue(around, u"arrhythmia"_s, arrhythmia(*connection.model));
    return printID(*connection.model, around)
        .and_then([&] { return printClock(*connection.model, around); })
        .and_then([&] { return printCount(*connection.model, around); });
}

CommandResult setClock(const MonitorConnection& connection, Surroundings& around) {
    const MonitorResult result = connection.model->setBPMDate();
    if (result != MonitorResult::success) return failed(qtTrId("CliClockUnset").arg(describe(result)));
    return printClock(*connection.model, around);
}

CommandResult sendID(const MonitorConnection& connection, const QString& ID, Surroundings& around) {
    const MonitorResult result = connection.model->sendID(ID, false);
    if (result != MonitorResult::success) return failed(qtTrId("CliIDUnsent").arg(describe(result)));
    return printID(*connection.model, around);
}

/// The memory is emptied by sending an ID again, so the monitor's own one has to be known first.
CommandResult erase(const MonitorConnection& connection, Surroundings& around) {
    const auto ID = connection.model->getBPMID();
    if (!ID) return failed(qtTrId("CliIDUnread").arg(describe(ID.error())));
    if (!BPMModel::fitsMonitor(*ID)) return failed(qtTrId("CliEraseNoID"));
    const MonitorResult result = connection.model->eraseData(*ID);
    if (result == MonitorResult::unconfirmed) return failed(qtTrId("CliEraseUnseen").arg(describe(result)));
    if (result != MonitorResult::success) return failed(qtTrId("CliEraseFailed").arg(describe(result)));
    return printCount(*connection.model, around);
}

CommandResult checkUsage(const QCommandLineParser& options) {
    const int jobs = options.isSet(u"set-clock"_s) + options.isSet(u"send-id"_s) + options.isSet(u"erase"_s);
    if (jobs > 1) return wrongUsage(qtTrId("CliOneJob"));
    if (options.isSet(u"yes"_s) && !options.isSet(u"erase"_s)) return wrongUsage(qtTrId("CliYesAlone"));
    if (options.isSet(u"erase"_s) && !options.isSet(u"yes"_s)) return wrongUsage(qtTrId("CliEraseNeedsYes"));
    if (options.isSet(u"send-id"_s) && !BPMModel::fitsMonitor(options.value(u"send-id"_s)))
        return wrongUsage(qtTrId("CliIDDoesNotFit").arg(options.value(u"send-id"_s)));
    return {};
}

CommandResult runMonitor(const Request& request, Surroundings& around) {
    const QCommandLineParser& options = request.options;
    if (CommandResult usage = checkUsage(options); !usage) return usage;
    const auto wait = waitTime(request);
    if (!wait) return tl::unexpected(wait.error());
    const auto connection = waitForMonitor(request, *wait, around);
    if (!connection) return tl::unexpected(connection.error());
    if (options.isSet(u"set-clock"_s)) return setClock(*connection, around);
    if (options.isSet(u"send-id"_s)) return sendID(*connection, options.value(u"send-id"_s), around);
    if (options.isSet(u"erase"_s)) return erase(*connection, around);
    return printAll(*connection, around);
}

} // namespace

Command monitorCommand() {
    return {"monitor", [] { return qtTrId("CliHelpMonitor"); },
            [] {
                return QList{flag(u"set-clock"_s), valued(u"send-id"_s), flag(u"erase"_s), flag(u"yes"_s),
                             waitOption()};
            },
            runMonitor};
}

} // namespace zel::cli

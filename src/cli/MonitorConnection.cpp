#include "cli/MonitorConnection.h"

#include "cli/Usage.h"

#include <algorithm>
#include <chrono>

namespace zel::cli {

using namespace Qt::StringLiterals;
using std::chrono::seconds;

namespace {

constexpr auto askEvery = std::chrono::milliseconds(200);
constexpr int longestWait = 86400; // seconds

QString noMonitorText(MonitorResult reason, seconds wait) {
    const QString number = QString::number(wait.count());
    if (reason == MonitorResult::noDevice) return qtTrId("CliNoMonitor").arg(number);
    if (reason == MonitorResult::accessDenied) return qtTrId("CliMonitorDenied").arg(describe(reason));
    return qtTrId("CliMonitorSilent").arg(number, describe(reason));
}

/// The first query after the device was opened only probes, so there are two at least.
MonitorExpected<QString> askRepeatedly(BPMModel& model, Clock& clock, seconds wait) {
    WallTime begin = clock.now();
    MonitorExpected<QString> version = model.getBPMVersion();
    for (int asked = 1; !version && (asked < 2 || clock.now() - begin < wait); ++asked) {
        clock.sleep(askEvery);
        begin = std::min(begin, clock.now()); // a clock set back must not make the wait endless
        version = model.getBPMVersion();
    }
    return version;
}

} // namespace

tl::expected<seconds, Failure> waitTime(const Request& request) {
    bool isNumber = false;
    const int wait = request.options.value(u"wait"_s).toInt(&isNumber);
    if (isNumber && wait >= 0 && wait <= longestWait) return seconds(wait);
    return wrongUsage(qtTrId("CliBadWait").arg(longestWait));
}

QCommandLineOption waitOption() { return {u"wait"_s, QString(), u"seconds"_s, u"5"_s}; }

tl::expected<MonitorConnection, Failure> waitForMonitor(const Request& request, seconds wait,
                                                        Surroundings& around) {
    AttachedMonitor port = around.attach(request.simulatedMonitor);
    if (!port) return failed(port.error());
    auto model = std::make_unique<BPMModel>(**port, around.clock);
    MonitorExpected<QString> version = askRepeatedly(*model, around.clock, wait);
    if (!version) return failed(noMonitorText(version.error(), wait));
    return MonitorConnection{std::move(*port), std::move(model), *version};
}

} // namespace zel::cli

#include "cli/MonitorConnection.h"

#include "cli/ProgressLine.h"
#include "cli/Usage.h"

#include <algorithm>
#include <chrono>

namespace zel::cli {

using namespace Qt::StringLiterals;
using std::chrono::seconds;

namespace {

constexpr auto askEvery = seconds(2);
constexpr auto silentFor = seconds(3); ///< before a wait is told of
constexpr int longestWait = 86400;     // seconds

QString noMonitorText(MonitorResult reason, seconds wait) {
    const QString number = QString::number(wait.count());
    if (reason == MonitorResult::noDevice) return qtTrId("CliNoMonitor").arg(number);
    if (reason == MonitorResult::accessDenied) return qtTrId("CliMonitorDenied").arg(describe(reason));
    return qtTrId("CliMonitorSilent").arg(number, describe(reason));
}

/// The wait for a monitor, told of from its third second on.
class Wait {
public:
    Wait(Surroundings& surroundings, seconds longest)
        : clock(surroundings.clock), wait(longest), begin(clock.now()), progress(surroundings) {}

    /// What is left of it. A clock set back must not make it endless.
    WallTime::duration left() {
        begin = std::min(begin, clock.now());
        return begin + wait - clock.now();
    }
    /// Sleeps until it is time to ask again, or the user stops the program.
    void pause(const BPMModel& model) {
        constexpr WallTime::duration step = std::chrono::milliseconds(50);
        auto time = std::clamp<WallTime::duration>(left(), seconds(0), askEvery);
        for (; time > seconds(0) && !model.isInterrupted(); time -= step) {
            clock.sleep(std::min(step, time));
            tell();
        }
    }

    void tell() {
        const WallTime::duration rest = left();
        if (rest > seconds(0) && wait - rest >= silentFor) progress.waiting(std::chrono::ceil<seconds>(rest));
    }

private:
    Clock& clock;
    seconds wait;
    WallTime begin;
    ProgressLine progress;
};

/// Looks again every two seconds, as the window does. The first query after the device was opened only
/// probes, so there are two at least. One that was not answered is not slept after: the next begins by
/// waiting for as long as the slowest monitor takes, and earlier when the late answer has come.
MonitorExpected<QString> askRepeatedly(BPMModel& model, Surroundings& around, seconds longest) {
    Wait wait(around, longest);
    MonitorExpected<QString> version = model.getBPMVersion();
    for (int asked = 1; !version && !model.isInterrupted(); ++asked) {
        if (asked >= 2 && wait.left() <= seconds(0)) break;
        if (version.error() == MonitorResult::timeOut)
            wait.tell();
        else
            wait.pause(model);
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
    auto stop = std::make_unique<StopSignals>(*model);
    MonitorExpected<QString> version = askRepeatedly(*model, around, wait);
    if (!version) return failed(noMonitorText(version.error(), wait));
    return MonitorConnection{std::move(*port), std::move(model), std::move(stop), *version};
}

} // namespace zel::cli

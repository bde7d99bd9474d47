#include "app/device/MonitorWatch.h"

#include <cstdlib>

namespace zel {

struct MonitorWatch::Answer {
    bool isConnected = false;
    bool isAFib = false;
    MonitorResult result = MonitorResult::success;
};

namespace {

/// Whole seconds by which the monitor's clock was ahead when it was asked.
MonitorExpected<std::int64_t> readSecondsAhead(BPMModel& monitor, const Clock& clock) {
    const auto asked = std::chrono::floor<std::chrono::seconds>(clock.now());
    return monitor.readBPMDate().map([asked](Instant date) { return SecondDiff(asked, date); });
}

} // namespace

MonitorWatch::MonitorWatch(const Parts& needed, std::chrono::milliseconds interval) : parts(needed) {
    timer.setSingleShot(true);
    timer.setInterval(interval);
    connect(&timer, &QTimer::timeout, this, &MonitorWatch::askMonitor);
}

void MonitorWatch::monitorBPM() { scheduleNext(); }

void MonitorWatch::askMonitor() {
    if (!isSplashClosed || parts.status.isBusy()) return scheduleNext();
    const auto ask = [](BPMModel& monitor) {
        Answer answer;
        answer.isConnected = monitor.checkIsConnected();
        answer.isAFib = monitor.isAFib();
        answer.result = monitor.lastResult();
        return answer;
    };
    parts.monitor.submit(this, ask, [this](const Answer& answer) { monitorAsked(answer); });
}

void MonitorWatch::monitorAsked(const Answer& answer) {
    // What the user started meanwhile goes first; the next cycle notices whatever has changed.
    if (parts.status.isBusy()) return scheduleNext();
    const bool changed = answer.isConnected != parts.status.state().isConnected;
    if (changed) forgetMonitor();
    parts.status.update([&](MonitorState& next) {
        next.isConnected = answer.isConnected;
        next.isAFib = answer.isAFib;
        if (changed || !answer.isConnected) next.trouble = answer.result;
    });
    if (!answer.isConnected) {
        if (changed) emit setHWButtons(false);
        scheduleNext();
    } else if (!IDAnnounced) {
        greet([this] { scheduleNext(); });
    } else {
        checkHWSwitchUser();
    }
}

void MonitorWatch::forgetMonitor() {
    clockChecked = false;
    clockFailures = 0;
    IDAnnounced = false;
    parts.status.update([](MonitorState& next) {
        next.IDOnDevice.reset();
        next.secondsAhead.reset();
    });
}

void MonitorWatch::updateUI() {
    clockChecked = false;
    clockFailures = 0;
    IDAnnounced = false;
    if (parts.status.state().isConnected) return greet([] {});
    emit setHWButtons(false);
}

/// Does what a newly connected monitor still lacks; what fails is tried again in the next cycle.
void MonitorWatch::greet(const Step& next) {
    setTrouble(MonitorResult::success);
    parts.status.setActivity(MonitorActivity::greeting);
    checkClock([this, next] { announceID(next); });
}

void MonitorWatch::checkClock(const Step& next) {
    if (clockChecked) return next();
    const auto read = [&clock = parts.clock](BPMModel& monitor) { return readSecondsAhead(monitor, clock); };
    parts.monitor.submit(this, read, [this, next](const MonitorExpected<std::int64_t>& secondsAhead) {
        if (secondsAhead) return clockRead(*secondsAhead, next);
        ++clockFailures;
        setTrouble(secondsAhead.error());
        next();
    });
}

/// A clock that could not be read when the monitor came is tried a few times more, behind all that matters
/// more.
void MonitorWatch::checkClockAgain(const Step& next) {
    constexpr int mostFailures = 3;
    if (clockChecked || clockFailures >= mostFailures || parts.status.isBusy()) return next();
    parts.status.setActivity(MonitorActivity::greeting);
    checkClock([this, next] {
        parts.status.setActivity(MonitorActivity::none);
        next();
    });
}

void MonitorWatch::clockRead(std::int64_t secondsAhead, const Step& next) {
    clockChecked = true;
    parts.status.update([=](MonitorState& state) { state.secondsAhead = secondsAhead; });
    if (std::abs(secondsAhead) < clockToleranceSeconds
        || !parts.panel.AskMessage(qtTrId("synctimeAsk").arg(describeClock(parts.status.state())),
                                   qtTrId("Synchronization")))
        return next();
    const auto set = [](BPMModel& monitor) { return monitor.setBPMDate(); };
    parts.monitor.submit(this, set, [this, next](MonitorResult result) {
        setTrouble(result);
        if (result == MonitorResult::success)
            parts.status.update([](MonitorState& state) { state.secondsAhead = 0; });
        else
            parts.panel.ShowMessage(qtTrId("clockNotSetAtGreeting").arg(describe(result)), qtTrId("Warning"));
        next();
    });
}

void MonitorWatch::announceID(const Step& next) {
    if (IDAnnounced) {
        parts.status.setActivity(MonitorActivity::none);
        return next();
    }
    const auto read = [](BPMModel& monitor) { return monitor.getBPMID(); };
    parts.monitor.submit(this, read, [this, next](const MonitorExpected<QString>& ID) {
        IDAnnounced = ID.has_value();
        parts.status.setActivity(MonitorActivity::none);
        if (ID)
            showIDInfo(*ID, true, true);
        else
            setTrouble(ID.error());
        next();
    });
}

/// Another monitor, or a new ID in this one, is taken over silently.
void MonitorWatch::checkHWSwitchUser() {
    const auto read = [](BPMModel& monitor) { return monitor.getBPMID(); };
    parts.monitor.submit(this, read, [this](const MonitorExpected<QString>& ID) {
        if (!parts.status.isBusy()) {
            setTrouble(ID ? MonitorResult::success : ID.error());
            if (ID && *ID != parts.status.state().IDOnDevice) showIDInfo(*ID, true, false);
        }
        checkClockAgain([this] { scheduleNext(); });
    });
}

void MonitorWatch::showIDInfo(const QString& ID, bool isHWExist, bool showDlg) {
    parts.status.update([&](MonitorState& next) {
        next.IDOnDevice = ID;
        next.isConnected = isHWExist;
    });
    emit setHWButtons(isHWExist);
    if (!showDlg) return;
    if (parts.store.validIDinXML(ID))
        parts.panel.ShowMessage(qtTrId("monitorConnectedID").arg(ID), qtTrId("monitorConnected"));
    else if (ID.isEmpty())
        parts.panel.ShowMessage(qtTrId("monitorWithoutID"), qtTrId("Warning"));
    else
        parts.panel.ShowMessage(qtTrId("newIDFromDevice").arg(ID), qtTrId("Warning"));
}

void MonitorWatch::setTrouble(MonitorResult result) {
    parts.status.update([result](MonitorState& next) { next.trouble = result; });
}

} // namespace zel

#include "app/device/MonitorWatch.h"

#include <algorithm>
#include <cstdlib>

namespace zel {

struct MonitorWatch::Answer {
    bool isConnected = false;
    bool isAFib = false;
    MonitorResult result = MonitorResult::success;
};

namespace {

/// Whole seconds by which the monitor's clock was ahead when it was asked; none when it is not set.
MonitorExpected<std::optional<std::int64_t>> readSecondsAhead(BPMModel& monitor, const Clock& clock) {
    const auto asked = std::chrono::floor<std::chrono::seconds>(clock.now());
    const auto date = monitor.readBPMDate();
    if (date) return SecondDiff(asked, *date);
    if (date.error() == MonitorResult::clockNotSet) return std::nullopt;
    return tl::unexpected(date.error());
}

/// An attached monitor that gave no proper answer.
bool isUnanswered(MonitorResult result) {
    return result != MonitorResult::success && result != MonitorResult::noDevice
           && result != MonitorResult::accessDenied && result != MonitorResult::interrupted;
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
        next.unanswered = isUnanswered(answer.result) ? std::min(2, next.unanswered + 1) : 0;
    });
    if (!answer.isConnected) {
        if (changed) emit setHWButtons(false);
        scheduleNext();
    } else if (!isGreeted) {
        greet([this] { scheduleNext(); });
    } else {
        checkHWSwitchUser();
    }
}

void MonitorWatch::forgetMonitor() {
    isGreeted = false;
    clockChecked = false;
    clockFailures = 0;
    parts.status.update([](MonitorState& next) {
        next.IDOnDevice.reset();
        next.secondsAhead.reset();
        next.isClockUnset = false;
    });
}

void MonitorWatch::updateUI() {
    isGreeted = false;
    clockChecked = false;
    clockFailures = 0;
    if (parts.status.state().isConnected) return greet([] {});
    emit setHWButtons(false);
}

/// Does what is due for a newly connected monitor. What fails is tried again in the next cycles, behind the
/// user's back: an ID that cannot be read must not keep him from sending another.
void MonitorWatch::greet(const Step& next) {
    isGreeted = true;
    setTrouble(MonitorResult::success);
    parts.status.setActivity(MonitorActivity::greeting);
    checkClock([this, next] { announceID(next); });
}

void MonitorWatch::checkClock(const Step& next) {
    if (clockChecked) return next();
    const auto read = [&clock = parts.clock](BPMModel& monitor) { return readSecondsAhead(monitor, clock); };
    parts.monitor.submit(this, read,
                         [this, next](const MonitorExpected<std::optional<std::int64_t>>& secondsAhead) {
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

void MonitorWatch::clockRead(std::optional<std::int64_t> secondsAhead, const Step& next) {
    clockChecked = true;
    parts.status.update([=](MonitorState& state) {
        state.secondsAhead = secondsAhead;
        state.isClockUnset = !secondsAhead;
    });
    if (secondsAhead && std::abs(*secondsAhead) < clockToleranceSeconds) return next();
    parts.panel.interject(this, [this, next] {
        const MonitorState& state = parts.status.state();
        const QString question =
            state.isClockUnset ? qtTrId("clockUnsetAsk") : qtTrId("synctimeAsk").arg(describeClock(state));
        if (!parts.panel.AskMessage(question, qtTrId("Synchronization"))) return next();
        putClockRight(next);
    });
}

void MonitorWatch::putClockRight(const Step& next) {
    const auto set = [](BPMModel& monitor) { return monitor.setBPMDate(); };
    parts.monitor.submit(this, set, [this, next](MonitorResult result) {
        setTrouble(result);
        if (result == MonitorResult::success) {
            parts.status.update([](MonitorState& state) {
                state.secondsAhead = 0;
                state.isClockUnset = false;
            });
            return next();
        }
        parts.panel.interject(this,
                              [this, next, told = qtTrId("clockNotSetAtGreeting").arg(describe(result))] {
                                  parts.panel.ShowMessage(told, qtTrId("Warning"));
                                  next();
                              });
    });
}

/// Whoever shows the status says whose it is.
void MonitorWatch::announceID(const Step& next) {
    const auto read = [](BPMModel& monitor) { return monitor.getBPMID(); };
    parts.monitor.submit(this, read, [this, next](const MonitorExpected<QString>& ID) {
        parts.status.setActivity(MonitorActivity::none);
        if (ID)
            takeOver(*ID);
        else
            setTrouble(ID.error());
        next();
    });
}

/// Another monitor, or a new ID in this one, is taken over.
void MonitorWatch::checkHWSwitchUser() {
    const auto read = [](BPMModel& monitor) { return monitor.getBPMID(); };
    parts.monitor.submit(this, read, [this](const MonitorExpected<QString>& ID) {
        const Step next = [this] { checkClockAgain([this] { scheduleNext(); }); };
        if (parts.status.isBusy()) return next();
        setTrouble(ID ? MonitorResult::success : ID.error());
        if (ID && *ID != parts.status.state().IDOnDevice) takeOver(*ID);
        next();
    });
}

void MonitorWatch::takeOver(const QString& ID) {
    parts.status.update([&](MonitorState& next) { next.IDOnDevice = ID; });
    emit setHWButtons(true);
}

void MonitorWatch::setTrouble(MonitorResult result) {
    parts.status.update([result](MonitorState& next) { next.trouble = result; });
}

} // namespace zel

#include "app/device/MonitorStatus.h"

#include <cstdlib>

namespace zel {

namespace {

QString activityText(MonitorActivity activity) {
    switch (activity) {
    case MonitorActivity::greeting: return qtTrId("monitorGreeting");
    case MonitorActivity::asking: return qtTrId("monitorReady");
    case MonitorActivity::counting: return qtTrId("monitorCounting");
    case MonitorActivity::erasing: return qtTrId("monitorErasing");
    case MonitorActivity::sendingID: return qtTrId("monitorSendingID");
    case MonitorActivity::downloading: return qtTrId("monitorDownloading");
    case MonitorActivity::settingClock: return qtTrId("monitorSettingClock");
    case MonitorActivity::none: break;
    }
    return {};
}

QString duration(std::int64_t seconds) {
    constexpr std::int64_t minute = 60, hour = 60 * minute, day = 24 * hour;
    const auto count = [](std::int64_t n) { return n > 9999 ? 9999 : static_cast<int>(n); };
    if (seconds >= 2 * day) return qtTrId("clockDays", count(seconds / day));
    if (seconds >= 2 * hour) return qtTrId("clockHours", count(seconds / hour));
    return qtTrId("clockMinutes", count(seconds / minute));
}

enum class Presence { absent, locked, undecided, faulty };

/// Of a monitor that is not connected. The first query of one that is just coming up may find it silent, and
/// the last one of one that is pulled out breaks off.
Presence presence(const MonitorState& state) {
    switch (state.trouble) {
    case MonitorResult::success:
    case MonitorResult::noDevice:
    case MonitorResult::interrupted: return Presence::absent;
    case MonitorResult::accessDenied: return Presence::locked;
    case MonitorResult::timeOut:
    case MonitorResult::readFailed:
    case MonitorResult::writeFailed: return state.unanswered < 2 ? Presence::undecided : Presence::faulty;
    default: return Presence::faulty;
    }
}

QString shortTrouble(MonitorResult trouble) {
    switch (trouble) {
    case MonitorResult::timeOut: return qtTrId("statusSilent");
    case MonitorResult::readFailed:
    case MonitorResult::writeFailed: return qtTrId("statusBroken");
    case MonitorResult::noAcknowledgement: return qtTrId("statusRefusing");
    default: return qtTrId("statusDamaged");
    }
}

} // namespace

QString describe(const MonitorState& state) {
    if (state.activity != MonitorActivity::none) return activityText(state.activity);
    if (!state.isConnected) {
        switch (presence(state)) {
        case Presence::absent: return qtTrId("monitorNotConnected");
        case Presence::locked: return describe(state.trouble);
        case Presence::undecided: return qtTrId("monitorLooking");
        case Presence::faulty: return qtTrId("monitorNotAnswering").arg(describe(state.trouble));
        }
    }
    if (state.trouble != MonitorResult::success) return qtTrId("monitorTrouble").arg(describe(state.trouble));
    return qtTrId("monitorReady");
}

QString describeShortly(const MonitorState& state) {
    if (state.activity != MonitorActivity::none) return activityText(state.activity);
    if (state.isConnected) return qtTrId("statusConnected");
    switch (presence(state)) {
    case Presence::locked: return qtTrId("statusLocked");
    case Presence::undecided: return qtTrId("monitorLooking");
    case Presence::faulty: return shortTrouble(state.trouble);
    case Presence::absent: break;
    }
    return qtTrId("statusNotConnected");
}

QString describeClock(const MonitorState& state) {
    if (state.isConnected && state.isClockUnset) return qtTrId("clockUnset");
    if (!state.isConnected || !state.secondsAhead) return qtTrId("notKnown");
    const std::int64_t off = *state.secondsAhead;
    if (std::abs(off) < clockToleranceSeconds) return qtTrId("clockRight");
    return (off > 0 ? qtTrId("clockAhead") : qtTrId("clockBehind")).arg(duration(std::abs(off)));
}

} // namespace zel

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

} // namespace

QString describe(const MonitorState& state) {
    if (state.activity != MonitorActivity::none) return activityText(state.activity);
    if (!state.isConnected)
        return state.trouble == MonitorResult::accessDenied ? describe(state.trouble)
                                                            : qtTrId("monitorNotConnected");
    if (state.trouble != MonitorResult::success) return qtTrId("monitorTrouble").arg(describe(state.trouble));
    return qtTrId("monitorReady");
}

QString describeClock(const MonitorState& state) {
    if (!state.isConnected || !state.secondsAhead) return qtTrId("notKnown");
    const std::int64_t off = *state.secondsAhead;
    if (std::abs(off) < clockToleranceSeconds) return qtTrId("clockRight");
    return (off > 0 ? qtTrId("clockAhead") : qtTrId("clockBehind")).arg(duration(std::abs(off)));
}

} // namespace zel

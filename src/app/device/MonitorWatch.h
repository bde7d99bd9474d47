#pragma once

#include "app/device/MonitorStatus.h"
#include "app/device/MonitorWorker.h"
#include "store/Clock.h"
#include "store/MessagePanel.h"

#include <QTimer>

#include <chrono>
#include <functional>

namespace zel {

/// Notices when a monitor is plugged in or pulled out, offers to set its clock and reads its ID.
/// A cycle starts an interval after the one before and all that it caused are done.
class MonitorWatch final : public QObject {
    Q_OBJECT
public:
    struct Parts {
        MonitorWorker& monitor;
        MonitorStatus& status;
        MessagePanel& panel;
        const Clock& clock;
    };
    MonitorWatch(const Parts& parts, std::chrono::milliseconds interval);

    /// Starts the polling, which asks the monitor nothing before setSplashClosed().
    void monitorBPM();
    void setSplashClosed() { isSplashClosed = true; }
    /// Reads clock and ID anew, as after a change of connection.
    void updateUI();

signals:
    void setHWButtons(bool connected);

private:
    using Step = std::function<void()>;
    struct Answer;

    void askMonitor();
    void monitorAsked(const Answer& answer);
    void forgetMonitor();
    void greet(const Step& next);
    void checkClock(const Step& next);
    void checkClockAgain(const Step& next);
    /// None for a clock that is not set.
    void clockRead(std::optional<std::int64_t> secondsAhead, const Step& next);
    void putClockRight(const Step& next);
    void announceID(const Step& next);
    void checkHWSwitchUser();
    void takeOver(const QString& ID);
    void setTrouble(MonitorResult result);
    void scheduleNext() { timer.start(); }

    Parts parts;
    QTimer timer;
    bool isSplashClosed = false;
    // Since the monitor was plugged in:
    bool isGreeted = false;
    bool clockChecked = false;
    int clockFailures = 0;
};

} // namespace zel

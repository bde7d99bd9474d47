#pragma once

#include "monitor/MonitorResult.h"

#include <QObject>
#include <QString>

#include <cstdint>
#include <optional>

namespace zel {

/// What the program is doing with the monitor beyond looking whether it is still there.
enum class MonitorActivity {
    none,
    greeting,
    asking,
    counting,
    erasing,
    sendingID,
    downloading,
    settingClock
};

/// What is known of the attached monitor.
struct MonitorState {
    bool isConnected = false;
    bool isAFib = false;                      ///< the attached model reports atrial fibrillation
    std::optional<QString> IDOnDevice;        ///< once it was read; empty when the monitor holds none
    std::optional<std::int64_t> secondsAhead; ///< of the monitor's clock, against the computer's
    bool isClockUnset = false;                ///< the monitor's clock shows no time at all
    /// Queries in a row that an attached monitor left without a proper answer, 2 for more as well.
    int unanswered = 0;
    MonitorActivity activity = MonitorActivity::none;
    MonitorResult trouble = MonitorResult::success; ///< what went wrong last and was not mended since

    bool operator==(const MonitorState&) const = default;
};

/// The monitor's state, its clock and what is being done with it, in plain words.
[[nodiscard]] QString describe(const MonitorState& state);
[[nodiscard]] QString describeClock(const MonitorState& state);

/// A clock that is this far off, or more, is worth a question.
inline constexpr std::int64_t clockToleranceSeconds = 61;

/// The state in a few words, for a line.
[[nodiscard]] QString describeShortly(const MonitorState& state);

/// The one place that knows the monitor's state; announces every change. Main thread only.
class MonitorStatus final : public QObject {
    Q_OBJECT
public:
    [[nodiscard]] const MonitorState& state() const { return current; }
    [[nodiscard]] bool isBusy() const { return current.activity != MonitorActivity::none; }
    /// Applies \p change to the state.
    template <class Change>
    void update(Change change) {
        MonitorState next = current;
        change(next);
        if (next == current) return;
        current = std::move(next);
        emit changed();
    }
    void setActivity(MonitorActivity activity) {
        update([activity](MonitorState& next) { next.activity = activity; });
    }

signals:
    void changed();

private:
    MonitorState current;
};

} // namespace zel

#pragma once

#include "monitor/FrameCodec.h"
#include "monitor/MonitorPort.h"
#include "monitor/MonitorResult.h"
#include "store/Clock.h"

#include <tl/expected.hpp>

#include <atomic>
#include <functional>
#include <mutex>
#include <optional>

namespace zel {

template <class T>
using MonitorExpected = tl::expected<T, MonitorResult>;

/// Called once a second while nothing has come for three seconds or more, with the longest that it may still
/// last.
using WaitNotice = std::function<void(std::chrono::seconds left)>;

/// What to gather out of the input reports of one reply.
struct Gathering {
    std::size_t wanted;                                 ///< bytes; the last report may bring more
    std::chrono::microseconds limit;                    ///< for all of it
    bool acknowledged = true;                           ///< the first report opens the reply
    std::optional<std::chrono::microseconds> silence{}; ///< longest wait for one report
    std::optional<std::chrono::microseconds>
        firstReport{};                                    ///< the same for the first one; as silence if none
    std::function<void(std::size_t gathered)> onReport{}; ///< called after every report with data
    WaitNotice onWait{};
};

/// Moves frames and replies over the port and waits for them. One exchange at a time: whoever calls anything
/// but getBPMData, interrupt and resume holds the lock of exchange().
class MonitorTransport {
public:
    MonitorTransport(MonitorPort& devicePort, Clock& wallClock);

    [[nodiscard]] std::unique_lock<std::mutex> exchange();

    /// Makes sure that the device is open and that nothing of an earlier exchange is queued.
    [[nodiscard]] MonitorResult my_hid_open();
    [[nodiscard]] MonitorResult sendCommand(Command command);
    /// Sends the command and waits at most 4 s for the acknowledgement.
    [[nodiscard]] MonitorResult sendBMPData(Command command);
    /// Sends a long data frame, 0.1 s a chunk. The device acknowledges nothing here, and no error is told. A
    /// frame once begun is finished even when interrupted, so that the monitor is not left with half of it;
    /// one that cannot be written goes no further, since each further chunk could block as long.
    void sendBMPData_8b(std::string_view payload);
    /// One whole query, with its lock: command, reply of at least \p expected bytes, check field.
    /// \param units of 2 s; one second without a report ends the wait as well, \p firstReport without any
    [[nodiscard]] MonitorExpected<std::string>
    getBPMData(Command command, std::size_t expected, int units,
               std::chrono::microseconds firstReport = std::chrono::seconds{1});
    [[nodiscard]] MonitorExpected<std::string> gather(const Gathering& gathering);
    /// Behind a reply: what else comes during \p duration.
    [[nodiscard]] MonitorExpected<std::string> listen(std::chrono::microseconds duration);
    /// Discards what arrives during \p duration. \return how many data bytes that was
    std::size_t clear_buffer(std::chrono::seconds duration);
    /// After a failed download: discards for 3 s, so that the next command starts on a quiet line.
    void clearAndClose();

    /// From any thread: every wait, now and until resume(), ends with `interrupted`.
    void interrupt();
    void resume();
    [[nodiscard]] bool isInterrupted() const;

    /// How often the device was opened: what was learned of it before the last time may be another's.
    [[nodiscard]] int openings() const { return openCount; }

    /// Pause between two reads while nothing is there.
    static constexpr std::chrono::microseconds iSleepTime{1000};
    /// The slowest monitor begins its answer by then.
    static constexpr std::chrono::milliseconds slowestAnswer{2500};

private:
    [[nodiscard]] bool isUsable() const;
    void discardQueued();
    void dropLateAnswer();
    /// One report, nothing when none is there now.
    [[nodiscard]] MonitorExpected<Report> readReport();

    MonitorPort& port;
    Clock& clock;
    std::mutex zel_mutex;
    bool gbOffline = true; ///< the last query found no device, so the next one only probes
    int openCount = 0;
    std::optional<WallTime> answerOwed; ///< when the query was written that ended without its answer
    std::atomic<bool> interruption = false;
};

} // namespace zel

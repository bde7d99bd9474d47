#include "monitor/MonitorTransport.h"

#include "monitor/Deadline.h"
#include "monitor/Log.h"

#include <array>
#include <utility>

namespace zel {

using namespace std::chrono_literals;

namespace {

constexpr auto probeLimit = 100us;
constexpr auto timeUnit = 2s;
constexpr auto silenceLimit = 1s;
constexpr auto acknowledgementLimit = 4s;
constexpr auto chunkPause = 100ms;
/// Without a report for so long, an answer that came late is over.
constexpr auto lateAnswerEnds = 100ms;
/// A whole download in reports of one byte, the most that one exchange can leave behind.
constexpr int mostQueuedReports = 32 + 255 * 32 + 2 + 1;
/// Empty reads in a row that make a line quiet.
constexpr int quietReads = 4;

/// Tells of a wait in which nothing comes, each second from the third on.
class Waiting {
public:
    Waiting(const Gathering& awaited, const Clock& wallClock)
        : gathering(awaited), clock(wallClock), begin(clock.now()), lastHeard(begin) {}
    void heard() {
        lastHeard = clock.now();
        told = untold;
    }
    void look() {
        if (!gathering.onWait) return;
        const WallTime now = clock.now();
        const auto quiet = std::chrono::floor<std::chrono::seconds>(now - lastHeard);
        if (quiet <= told) return;
        told = quiet;
        gathering.onWait(std::chrono::ceil<std::chrono::seconds>(gathering.limit - (now - begin)));
    }

private:
    static constexpr std::chrono::seconds untold{2};
    const Gathering& gathering;
    const Clock& clock;
    WallTime begin;
    WallTime lastHeard;
    std::chrono::seconds told = untold;
};

bool verify(std::string_view payload) {
    if (checkSum(payload)) return true;
    if (payload.size() < 2) {
        qCWarning(lcMonitor, "checkSum error : data length error");
        return false;
    }
    const CheckField field = replyCheckField(payload);
    qCWarning(lcMonitor, "checkSum error res2:%c  res1:%c  daat2:%c  data1:%c\n", field.high,
              payload[payload.size() - 2], field.low, payload.back());
    return false;
}

} // namespace

MonitorTransport::MonitorTransport(MonitorPort& devicePort, Clock& wallClock)
    : port(devicePort), clock(wallClock) {}

std::unique_lock<std::mutex> MonitorTransport::exchange() { return std::unique_lock(zel_mutex); }

void MonitorTransport::interrupt() { interruption = true; }
void MonitorTransport::resume() { interruption = false; }
bool MonitorTransport::isInterrupted() const { return interruption; }

bool MonitorTransport::isUsable() const { return port.isOpen() && !port.disconnected(); }

/// The answer to a query that was given up, a probe above all, must not be taken for the next one's. It is
/// waited for as long as the slowest monitor takes, and dropped.
void MonitorTransport::dropLateAnswer() {
    if (!answerOwed) return;
    const auto gone = clock.now() - *std::exchange(answerOwed, std::nullopt);
    Deadline beginning(clock, slowestAnswer - std::max(gone, WallTime::duration{0}));
    Deadline rest(clock, lateAnswerEnds);
    bool heard = false;
    while (!isInterrupted() && !(heard ? rest : beginning).passed()) {
        const auto report = readReport();
        if (!report) return;
        if (!report->empty()) {
            heard = true;
            rest.restart();
        }
        clock.sleep(iSleepTime);
    }
}

/// The answer to a probe arrives after the probe has ended, as does the rest of an exchange that was given
/// up; either would be taken for the answer to the next command. An unplugged device shows here as well. One
/// empty read says little: over USB a report that came long ago may show only at a later look.
void MonitorTransport::discardQueued() {
    int emptyReads = 0;
    for (int i = 0; i < mostQueuedReports; ++i) {
        const auto report = readReport();
        if (!report) return;
        emptyReads = report->empty() ? emptyReads + 1 : 0;
        if (emptyReads == quietReads) return;
        if (emptyReads > 0) clock.sleep(iSleepTime);
    }
}

MonitorResult MonitorTransport::my_hid_open() {
    if (isInterrupted()) return MonitorResult::interrupted;
    if (isUsable()) dropLateAnswer();
    if (isUsable()) discardQueued();
    if (isInterrupted()) return MonitorResult::interrupted;
    if (isUsable()) return MonitorResult::success;
    answerOwed.reset();
    switch (port.open()) {
    case PortOpen::opened: ++openCount; return MonitorResult::success;
    case PortOpen::denied: return MonitorResult::accessDenied;
    case PortOpen::absent: break;
    }
    return MonitorResult::noDevice;
}

MonitorExpected<Report> MonitorTransport::readReport() {
    std::array<std::uint8_t, 256> buffer{};
    const int length = port.read(buffer);
    if (length < 0) return tl::unexpected(MonitorResult::readFailed);
    const auto end = std::min(static_cast<std::size_t>(length), buffer.size());
    return Report(buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(end));
}

MonitorResult MonitorTransport::sendCommand(Command command) {
    return port.write(commandFrame(command)) ? MonitorResult::success : MonitorResult::writeFailed;
}

MonitorResult MonitorTransport::sendBMPData(Command command) {
    if (const auto sent = sendCommand(command); sent != MonitorResult::success) return sent;
    // The acknowledgement is a reply that is complete with its first report, whatever else that carries.
    const auto reply = gather({.wanted = 0, .limit = acknowledgementLimit});
    return reply ? MonitorResult::success : reply.error();
}

void MonitorTransport::sendBMPData_8b(std::string_view payload) {
    for (const Report& chunk : dataChunks(payload)) {
        if (!port.write(chunk)) return;
        clock.sleep(chunkPause);
    }
}

MonitorExpected<std::string> MonitorTransport::gather(const Gathering& gathering) {
    Deadline deadline(clock, gathering.limit);
    Deadline silence(clock, gathering.silence.value_or(gathering.limit));
    Deadline beginning(clock, gathering.firstReport.value_or(gathering.silence.value_or(gathering.limit)));
    std::string gathered;
    bool first = gathering.acknowledged;
    Waiting waiting(gathering, clock);
    bool begun = false;
    while (!isInterrupted()) {
        const auto report = readReport();
        if (!report) return tl::unexpected(report.error());
        if (!report->empty()) {
            if (first && !isAcknowledged(*report)) return tl::unexpected(MonitorResult::noAcknowledgement);
            gathered += reportPayload(*report, std::exchange(first, false));
            if (gathering.onReport) gathering.onReport(gathered.size());
            if (gathered.size() >= gathering.wanted) return gathered;
            silence.restart();
            waiting.heard();
            begun = true;
        }
        clock.sleep(iSleepTime);
        const bool late = deadline.passed();
        const bool silent = (begun ? silence : beginning).passed() && gathering.silence;
        if (late || silent) return tl::unexpected(MonitorResult::timeOut);
        waiting.look();
    }
    return tl::unexpected(MonitorResult::interrupted);
}

MonitorExpected<std::string> MonitorTransport::listen(std::chrono::microseconds duration) {
    Deadline deadline(clock, duration);
    std::string heard;
    while (!deadline.passed()) {
        if (isInterrupted()) return tl::unexpected(MonitorResult::interrupted);
        const auto report = readReport();
        if (!report) return tl::unexpected(report.error());
        heard += reportPayload(*report, false);
        clock.sleep(iSleepTime);
    }
    return heard;
}

MonitorExpected<std::string> MonitorTransport::getBPMData(Command command, std::size_t expected, int units,
                                                          std::chrono::microseconds firstReport) {
    const auto lock = exchange();
    const MonitorResult opened = my_hid_open();
    if (opened == MonitorResult::noDevice || opened == MonitorResult::accessDenied) gbOffline = true;
    if (opened != MonitorResult::success) return tl::unexpected(opened);
    // A device that was away gets a single look, so that a query never waits long for one that is just coming
    // up.
    const auto limit =
        std::exchange(gbOffline, false) ? probeLimit : std::chrono::microseconds{units * timeUnit};
    if (const auto sent = sendCommand(command); sent != MonitorResult::success) return tl::unexpected(sent);
    const WallTime asked = clock.now();
    auto reply =
        gather({.wanted = expected, .limit = limit, .silence = silenceLimit, .firstReport = firstReport});
    if (!reply && reply.error() == MonitorResult::timeOut) answerOwed = asked;
    if (reply && !verify(*reply)) return tl::unexpected(MonitorResult::badCheckField);
    return reply;
}

std::size_t MonitorTransport::clear_buffer(std::chrono::seconds duration) {
    Deadline deadline(clock, duration);
    std::size_t discarded = 0;
    while (!deadline.passed()) {
        if (isInterrupted()) return discarded;
        const auto report = readReport();
        if (!report) {
            qCInfo(lcMonitor, "clear end of read");
            return discarded;
        }
        if (report->empty()) {
            clock.sleep(iSleepTime); // the result is the same, but no core is kept busy
        } else {
            qCDebug(lcMonitor, "clear buffer:"); // a line a report: up to thousands
            discarded += reportPayload(*report, false).size();
        }
    }
    qCInfo(lcMonitor, "clear timeout");
    return discarded;
}

void MonitorTransport::clearAndClose() {
    qCInfo(lcMonitor, "clear buffer for data count:");
    clear_buffer(3s);
}

} // namespace zel

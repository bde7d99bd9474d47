#pragma once

#include "monitor/MonitorTransport.h"

#include <string>
#include <string_view>

namespace zel {

/// Called as a download goes on with (records announced, records received so far).
using DownloadProgress = std::function<void(int total, int done)>;

/// A download as it came: \p bytes is the header and, behind it, \p count records of 32 bytes; empty when
/// the monitor holds none.
struct CycleData {
    std::string ID;
    std::string bytes;
    int count = 0;
};

/// The monitor's commands, each tried once. Each holds the transport's lock for its whole exchange.
class MonitorCommands {
public:
    explicit MonitorCommands(MonitorTransport& link);

    /// The ID as bytes, at most 11.
    [[nodiscard]] MonitorExpected<std::string> getBPMID();
    /// The 12 characters of the version reply; the model code is at 6 and 7.
    [[nodiscard]] MonitorExpected<std::string> getBPMVersion();
    /// The clock-and-settings reply: "MMddyy", two characters without use, "HHmmss", settings.
    [[nodiscard]] MonitorExpected<std::string> getBPMDate();
    /// Number of stored records. The monitor sends them all, which is waited for.
    [[nodiscard]] MonitorExpected<int> getBPMCycleDataCount(const WaitNotice& waiting = {});
    /// \param attempt 1, 2 or 3: scales the time-outs
    [[nodiscard]] MonitorExpected<CycleData> getBPMCycleData(const DownloadProgress& progress, int attempt,
                                                             const WaitNotice& waiting = {});
    /// \return readFailed, and nothing is sent, if the device would have to be opened anew, or, for \p clear,
    /// for the first time
    [[nodiscard]] MonitorResult sendID(std::string_view ID, bool clear);
    /// \param time 14 characters, "yyyyMMddHHmmss"
    [[nodiscard]] MonitorResult setBPMDate(std::string_view time);

private:
    [[nodiscard]] MonitorResult sendRecordsCommand();
    [[nodiscard]] MonitorExpected<CycleData> download(const DownloadProgress& progress, int attempt,
                                                      const WaitNotice& waiting);
    [[nodiscard]] MonitorExpected<CycleData> confirmEmpty(std::string_view head);
    [[nodiscard]] MonitorExpected<std::string> gatherRecords(std::string_view head, int count,
                                                             const DownloadProgress& progress, int attempt,
                                                             const WaitNotice& waiting);
    /// What was asked before has gone if the device has to be opened now: another one may be in its place.
    enum class Opening { any, sameAsBefore };
    [[nodiscard]] MonitorResult sendFrame(Command command, std::string_view frame, Opening opening);

    MonitorTransport& transport;
};

} // namespace zel

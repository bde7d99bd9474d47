#pragma once

#include "monitor/ModelCapability.h"
#include "monitor/MonitorCommands.h"
#include "monitor/MonitorPort.h"
#include "monitor/MonitorResult.h"
#include "store/Clock.h"
#include "store/Dates.h"
#include "store/ReadingModel.h"

#include <QString>

#include <memory>
#include <vector>

namespace zel {

/// The monitor: its commands with their retries, and what is known of the one last asked. All operations
/// belong to one thread, interrupt() and resume() aside.
class BPMModel {
public:
    BPMModel(MonitorPort& port, Clock& clock);
    ~BPMModel();

    [[nodiscard]] bool
    isAFib() const; ///< of the monitor last asked for its model code; false after a failure
    [[nodiscard]] bool isPAD() const;
    [[nodiscard]] bool IsConnected() const; ///< result of the last checkIsConnected(); asks nothing
    bool checkIsConnected();
    /// How the last checkIsConnected() ended; noDevice before the first.
    [[nodiscard]] MonitorResult lastResult() const;

    /// Model code, two upper-case characters. The first query after a failed open only probes: it fails with
    /// timeOut, and the next one succeeds.
    MonitorExpected<QString> getBPMVersion();
    /// The ID stored in the monitor, trimmed; may be empty.
    MonitorExpected<QString> getBPMID();
    /// Writes the ID and reads it back; \p clear also empties the memory, and counts what is left. An ID that
    /// does not fit (fitsMonitor) is refused with unfitID, as the monitor would keep another one than was
    /// meant. \return notTaken when the monitor then holds something else, unconfirmed when that could not be
    /// read, or the memory that was to be emptied not without opening the device anew
    MonitorResult sendID(const QString& ID, bool clear);
    /// Empties the monitor's memory, by sending \p currentID with the clear flag.
    MonitorResult eraseData(const QString& currentID);
    /// Number of stored readings. Takes 1 to 20 s, as the monitor then sends them all.
    MonitorExpected<int> getBPMCycleDataCount(const WaitNotice& waiting = {});
    /// All stored readings in the monitor's order, after at most three tries; empty when it holds none. Each
    /// try asks for the model code first, which gives a record's flag its meaning, and fails without it.
    /// \p waiting tells of waits, with the time that all tries may still take while nothing comes.
    /// Leaves the monitor's memory alone: it may be erased once the readings are on disk.
    MonitorExpected<std::vector<ReadingModel>> getBPMCycleData(const DownloadProgress& progress,
                                                               const WaitNotice& waiting = {});
    /// The monitor's clock; clockNotSet if it has no month and no day, badFixedContent if what else it says
    /// is no date.
    MonitorExpected<Instant> readBPMDate();
    /// Sets the monitor's clock to the computer's local time and reads it back. \return as sendID()
    MonitorResult setBPMDate();

    /// How often the device was opened: what was learned of it before the last time may be another one's.
    [[nodiscard]] int openings() const;

    /// Discards for 3 s what the monitor still sends of a download that was given up, so that the next
    /// command starts on a quiet line.
    void quietLine();

    /// Makes the exchange that is under way, and every later one until resume(), end with `interrupted`
    /// within one read. From any thread.
    void interrupt();
    void resume();
    [[nodiscard]] bool isInterrupted() const;

    /// 1 to 11 printable ASCII characters without blanks at the ends: what the monitor keeps and gives back.
    [[nodiscard]] static bool fitsMonitor(const QString& ID);
    /// By model code; neither for codes that are not known.
    [[nodiscard]] static ModelCapability capability(const QString& version);

private:
    struct Link;
    std::unique_ptr<Link> link;
};

} // namespace zel

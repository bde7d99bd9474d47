#pragma once

#include <QString>

namespace zel {

/// The outcome of an exchange with the monitor, with the numbers that the log lines print.
enum class MonitorResult {
    success = 0,
    noDevice = -1, ///< none attached, or it vanished
    writeFailed = -2,
    readFailed = -3,
    noAcknowledgement = -4, ///< the first report did not carry 0x06
    badCheckField = -5,
    badFixedContent = -6,
    timeOut = -7,
    accessDenied = -8, ///< attached, but may not be opened (this program's own code)
    interrupted = -9,  ///< stopped by the user or by the program's end (this program's own code)
    unfitID = -10,     ///< the monitor cannot keep this ID; nothing was sent (this program's own code)
    clockNotSet = -11, ///< it answered well, but its clock was never set (this program's own code)
    notTaken = -12,    ///< it acknowledged a change, but holds something else (this program's own code)
    unconfirmed = -13, ///< a change was sent, but what it holds now could not be read (this program's own)
};

/// The outcome in plain words for the user, from the translation table.
[[nodiscard]] QString describe(MonitorResult result);

} // namespace zel

#pragma once

#include <QByteArray>
#include <QString>

namespace zel {

/// While it lives, one call of the system on the files below a folder fails: of all calls to open, read,
/// write, flush, rename, remove, close or lock one, or to make a link or a folder, the \p nth, counted
/// from 1. A test that links this has the system's calls replaced by its own, which hand on to them.
class FailingCalls {
public:
    /// \p error: the system's number; 0: reads and writes do half of what they were asked for, the others do
    /// all. \p nth 0 fails none, and counts.
    FailingCalls(const QString& below, unsigned nth, int error = 0);
    ~FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;

    [[nodiscard]] static unsigned count();    ///< calls so far
    [[nodiscard]] static QByteArray failed(); ///< name of the call that failed; empty: none did
};

} // namespace zel

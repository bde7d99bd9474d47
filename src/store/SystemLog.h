#pragma once

namespace zel {

/// Sends the program's log lines to the system log; when standard error is a terminal, there instead.
void installSystemLog();

} // namespace zel

#pragma once

#include "monitor/MonitorPort.h"
#include "report/UsualPaper.h"
#include "store/Clock.h"
#include "store/DataStore.h"

#include <QString>

#include <tl/expected.hpp>

#include <functional>
#include <memory>
#include <optional>
#include <ostream>

namespace zel::cli {

/// The words for the user stand in for a monitor that cannot be had.
using AttachedMonitor = tl::expected<std::unique_ptr<MonitorPort>, QString>;

/// All that a command touches outside itself. The program gives the real things, a test its own.
struct Surroundings {
    std::ostream& out;
    std::ostream& err;
    bool errIsTerminal = false;
    Clock& clock;
    QPageSize usualPaper{QPageSize::A4}; ///< of a report that names none
    StorePaths paths;                    ///< an empty home: the environment names none
    /// The USB monitor for none, else the simulated one of that plan file (empty: the built-in plan).
    std::function<AttachedMonitor(const std::optional<QString>& simulated)> attach;
};

/// One line of UTF-8, on its way at once.
void printLine(std::ostream& stream, const QString& text);

} // namespace zel::cli

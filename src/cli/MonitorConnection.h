#pragma once

#include "cli/Command.h"
#include "cli/StopSignals.h"
#include "monitor/BPMModel.h"

#include <chrono>
#include <memory>

namespace zel::cli {

/// A monitor that has answered.
struct MonitorConnection {
    std::unique_ptr<MonitorPort> port;
    std::unique_ptr<BPMModel> model;
    std::unique_ptr<StopSignals> stop;
    QString version; ///< its model code
};

/// The option --wait that goes with waitForMonitor.
[[nodiscard]] QCommandLineOption waitOption();

/// How long the user wants to wait for the monitor.
[[nodiscard]] tl::expected<std::chrono::seconds, Failure> waitTime(const Request& request);

/// Asks for the model code until it comes, for at most this long.
[[nodiscard]] tl::expected<MonitorConnection, Failure>
waitForMonitor(const Request& request, std::chrono::seconds wait, Surroundings& around);

} // namespace zel::cli

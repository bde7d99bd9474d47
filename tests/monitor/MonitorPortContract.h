#pragma once

#include "monitor/MonitorPort.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace zel {

/// One kind of port with a monitor on it that answers, and the hands that hold its cable.
struct PortOnTrial {
    std::unique_ptr<MonitorPort> port;
    std::function<void()> plug;   ///< returns when the monitor can be opened
    std::function<void()> unplug; ///< returns when it is gone
    std::function<void()> settle; ///< gives the monitor time for a report
};

/// What every MonitorPort owes to the code above it. Starts with the monitor plugged in.
class MonitorPortContract : public testing::TestWithParam<std::function<PortOnTrial()>> {};

} // namespace zel

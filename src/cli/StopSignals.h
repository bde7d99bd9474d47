#pragma once

#include "monitor/BPMModel.h"

#include <array>
#include <csignal>

namespace zel::cli {

/// While it lives, SIGINT, SIGTERM and SIGHUP end the exchange with the monitor and not the program at once,
/// so that a frame once begun is finished. The program then ends by the signal: when this object goes, or two
/// seconds after the signal should the device block. A signal that was ignored stays so. One at a time.
class StopSignals {
public:
    explicit StopSignals(BPMModel& model);
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

private:
    static constexpr std::array<int, 4> caught{SIGINT, SIGTERM, SIGHUP, SIGALRM};
    std::array<struct sigaction, caught.size()> before{};
};

} // namespace zel::cli

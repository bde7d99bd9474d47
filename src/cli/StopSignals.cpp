#include "cli/StopSignals.h"

#include <atomic>
#include <unistd.h>

namespace zel::cli {

namespace {

constexpr unsigned longestDelay = 2; // seconds

// All that a signal's handler can reach.
std::atomic<BPMModel*> stoppable = nullptr;
std::atomic<int> stopSignal = 0;
static_assert(std::atomic<BPMModel*>::is_always_lock_free && std::atomic<int>::is_always_lock_free);

void endBy(int signal) {
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

extern "C" void stopExchange(int signal) {
    int none = 0;
    if (stopSignal.compare_exchange_strong(none, signal)) alarm(longestDelay);
    if (BPMModel* model = stoppable) model->interrupt();
}

extern "C" void giveUpExchange(int /*signal*/) { endBy(stopSignal); }

} // namespace

StopSignals::StopSignals(BPMModel& model) {
    stopSignal = 0;
    stoppable = &model;
    for (std::size_t i = 0; i < caught.size(); ++i) {
        struct sigaction action {};
        action.sa_handler = caught[i] == SIGALRM ? giveUpExchange : stopExchange;
        action.sa_flags = SA_RESTART;
        sigaction(caught[i], nullptr, &before[i]);
        if (before[i].sa_handler != SIG_IGN || caught[i] == SIGALRM) sigaction(caught[i], &action, nullptr);
    }
}

StopSignals::~StopSignals() {
    stoppable = nullptr;
    alarm(0);
    for (std::size_t i = 0; i < caught.size(); ++i)
        sigaction(caught[i], &before[i], nullptr);
    if (const int signal = stopSignal) endBy(signal);
}

} // namespace zel::cli

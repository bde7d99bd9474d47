#include "app/shell/TerminationSignals.h"

#include <QSocketNotifier>

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

namespace zel {

namespace {

sigset_t terminating() {
    sigset_t blocked;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGINT);
    sigaddset(&blocked, SIGTERM);
    sigaddset(&blocked, SIGHUP);
    return blocked;
}

} // namespace

TerminationSignals::TerminationSignals() : descriptor(-1) {
    const sigset_t blocked = terminating();
    if (pthread_sigmask(SIG_BLOCK, &blocked, nullptr) != 0) return;
    descriptor = signalfd(-1, &blocked, SFD_NONBLOCK | SFD_CLOEXEC);
}

void TerminationSignals::watch() {
    if (descriptor < 0) return;
    notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    connect(notifier.get(), &QSocketNotifier::activated, this, [this] {
        signalfd_siginfo info;
        if (read(descriptor, &info, sizeof info) == sizeof info) emit terminated();
    });
}

TerminationSignals::~TerminationSignals() {
    notifier.reset();
    if (descriptor >= 0) close(descriptor);
    const sigset_t blocked = terminating();
    pthread_sigmask(SIG_UNBLOCK, &blocked, nullptr);
}

} // namespace zel

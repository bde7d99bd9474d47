#pragma once

#include <QProcess>

#include <csignal>
#include <sys/prctl.h>

namespace zel {

/// Has a program that is still to be started end with the test, also where that is killed, as for its time.
inline void endWithTest(QProcess& program) {
    program.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

} // namespace zel

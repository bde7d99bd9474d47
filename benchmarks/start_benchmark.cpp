// From the start of the program's process until its main window has been painted with the patients in it and
// its event loop is free for the user, beside the same of an empty Qt window.

#include "Figure.h"
#include "LongHistory.h"
#include "store/AtomicFile.h"
#include "store/DataFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <array>
#include <cstdlib>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using namespace zel;

/// Starts a program and waits until it says that its window is there; it ends by itself.
void runUntilPainted(const char* program, const QString& home) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) std::abort();
    std::array settings{"HOME=" + home.toStdString(),
                        "XDG_RUNTIME_DIR=" + home.toStdString(),
                        "XDG_CACHE_HOME=" + home.toStdString(),
                        std::string("PATH=/usr/bin:/bin"),
                        std::string("LANG=C.UTF-8"),
                        std::string("QT_QPA_PLATFORM=offscreen"),
                        std::string("LD_PRELOAD=" ZEL_FIRST_PAINT),
                        "ZEL_FIRST_PAINT_FD=" + std::to_string(ends[1])};
    std::vector<char*> environment;
    environment.reserve(settings.size() + 1);
    for (std::string& setting : settings)
        environment.push_back(setting.data());
    environment.push_back(nullptr);
    std::string name = program;
    std::array<char*, 2> arguments{name.data(), nullptr};
    pid_t child = 0;
    if (posix_spawn(&child, program, nullptr, nullptr, arguments.data(), environment.data()) != 0)
        std::abort();
    close(ends[1]);
    char answer = 0;
    if (read(ends[0], &answer, 1) != 1) qFatal("%s has shown no window", program);
    close(ends[0]);
    waitpid(child, nullptr, 0);
}

void measure(const std::string& what, int patients, int readings) {
    const QTemporaryDir home;
    SystemClock clock;
    const QString file =
        DataFile({home.path(), home.path(), QStringLiteral(":/templates")}, clock).getZELXMLPath();
    QDir{}.mkpath(QFileInfo{file}.path());
    if (!replaceFile(file, makeLongHistory(patients, readings))) std::abort();
    constexpr int rounds = 15;
    const auto [ours, bare, ratio] = inTurn(
        rounds, [&] { runUntilPainted(ZEL_PROGRAM, home.path()); },
        [&] { runUntilPainted(ZEL_EMPTY_WINDOW, home.path()); });
    const auto inMs = [](double value) { return std::to_string(static_cast<int>(1000 * value)) + " ms"; };
    print({.what = what + ": " + inMs(ours) + ", more than an empty Qt window's " + inMs(bare),
           .unit = "ms",
           .ours = 1000 * (ours - bare),
           .against = {},
           .target = 150});
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application{argc, argv};
    const bool small = isSmall(argc, argv);
    measure("Start with a data file of 1 MB", 20, 3000);
    if (!small) measure("Start with a data file of 34 MB", 200, 100'000);
    return 0;
}

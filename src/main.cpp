#include "app/shell/Application.h"
#include "cli/CommandLine.h"
#include "store/CrashFile.h"

#include <csignal>

int main(int argc, char** argv) {
    // A file that reaches a size limit is an error to be told, not the end of what was typed.
    std::signal(SIGXFSZ, SIG_IGN);
    zel::leaveNoCrashFile();
    if (zel::cli::isCommand(argc, argv)) return zel::cli::run(argc, argv);
    return zel::runApplication(argc, argv);
}

#include "app/shell/Application.h"
#include "cli/CommandLine.h"

int main(int argc, char** argv) {
    if (zel::cli::isCommand(argc, argv)) return zel::cli::run(argc, argv);
    return zel::runApplication(argc, argv);
}

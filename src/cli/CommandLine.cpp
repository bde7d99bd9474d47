#include "cli/CommandLine.h"

#include "cli/Commands.h"
#include "cli/Usage.h"
#include "monitor/HidPort.h"
#include "monitor/SimulatedMonitor.h"
#include "report/TextApplication.h"
#include "report/UsualPaper.h"
#include "store/LanguageChoice.h"
#include "store/Languages.h"
#include "store/SystemLog.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <iostream>
#include <unistd.h>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

QStringList argumentsOf(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments += QString::fromUtf8(argv[i]);
    return arguments;
}

/// The command, behind whatever options stand before it.
QString commandWord(int argc, char** argv) {
    return takeSimulatedMonitor(takeLanguageOption(argumentsOf(argc, argv)).words).words.value(0);
}

AttachedMonitor attachMonitor(const std::optional<QString>& simulated, const Clock& clock) {
    if (simulated) return makeSimulatedMonitor(*simulated, clock);
    return std::make_unique<HidPort>();
}

/// A report is painted; the other commands do without what that takes.
std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv) {
    if (commandWord(argc, argv) == "report"_L1) return makeTextApplication(argc, argv);
    return std::make_unique<QCoreApplication>(argc, argv);
}

/// A script reads the results; it wants words about what went wrong, not about what went well.
void quietLog() {
    installSystemLog();
    if (qEnvironmentVariableIsEmpty("QT_LOGGING_RULES"))
        QLoggingCategory::setFilterRules(u"*.info=false\n*.debug=false"_s);
}

} // namespace

bool isCommand(int argc, char** argv) {
    const QString word = commandWord(argc, argv);
    if (word.isEmpty()) return false;
    return !word.startsWith(u'-') || word == "--help"_L1 || word == "-h"_L1 || word == "--version"_L1;
}

int run(int argc, char** argv) {
    // Both before the locale is set, which hides what the user has set.
    const QPageSize paper = usualPaper(paperLocale());
    const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // The same output in every environment; Qt, too, wants a UTF-8 locale and would speak up about another.
    qputenv("LC_ALL", "C.UTF-8");
    const auto application = makeApplication(argc, argv);
    quietLog();
    const auto chosen = chosenLanguage(qEnvironmentVariable("HOME"));
    const QStringList arguments = argumentsOf(argc, argv);
    const ProgramTexts texts(
        languageOfRun(takeLanguageOption(arguments), chosen.value_or(QString()), environment));
    if (!chosen) printLine(std::cerr, u"zel: "_s + describeUnreadLanguage(chosen.error()));
    SystemClock clock;
    Surroundings around{.out = std::cout,
                        .err = std::cerr,
                        .errIsTerminal = isatty(STDERR_FILENO) == 1,
                        .clock = clock,
                        .usualPaper = paper,
                        .paths = {.home = qEnvironmentVariable("HOME"),
                                  .applicationFolder = QCoreApplication::applicationDirPath(),
                                  .templateFolder = u":/templates"_s},
                        .attach = [&](const auto& simulated) { return attachMonitor(simulated, clock); }};
    return run(arguments, around);
}

} // namespace zel::cli

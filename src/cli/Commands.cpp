#include "cli/Commands.h"

#include "cli/Usage.h"
#include "store/Backups.h"
#include "store/Languages.h"
#include "store/SecondFolder.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

void tell(Surroundings& around, const QString& program, const Failure& failure) {
    if (!failure.words.isEmpty()) complain(around, program, failure.words);
    if (failure.status == ExitStatus::wrongUsage)
        printLine(around.err, qtTrId("CliTryHelp").arg(program + u" --help"_s));
}

CommandResult runCommand(const Command& command, const Arguments& arguments, Surroundings& around) {
    // Not the built-in monitor: a script whose file name came out empty must not store made-up readings.
    if (arguments.hasEmptyPlan) return wrongUsage(qtTrId("CliPlanWithoutFile"));
    const auto options = parseOptions(command, arguments.words.mid(1));
    if (!options) return tl::unexpected(options.error());
    if ((*options)->isSet(u"help"_s)) {
        printLine(around.out, command.help());
        return {};
    }
    return command.run({**options, arguments.simulatedMonitor}, around);
}

CommandResult runGlobal(const Arguments& arguments, Surroundings& around) {
    const QString word = arguments.words.value(0);
    if (word == "--help"_L1 || word == "-h"_L1)
        printLine(around.out, qtTrId("CliHelp"));
    else if (word == "--version"_L1)
        printLine(around.out, u"zel "_s + QStringLiteral(ZEL_VERSION));
    else if (word.isEmpty())
        return wrongUsage(qtTrId("CliNoCommand"));
    else
        return wrongUsage(qtTrId("CliUnknownCommand").arg(word));
    return {};
}

QString dataFileOf(const Surroundings& around) {
    return DataFile(around.paths, around.clock).getZELXMLPath();
}

/// Every change replaces the file.
QDateTime dataFileTime(const Surroundings& around) { return QFileInfo(dataFileOf(around)).lastModified(); }

/// After a change: the copy that was made before it.
void copyToSecondFolder(Surroundings& around, const QString& program) {
    const QString dataFile = dataFileOf(around);
    const DataFile file(around.paths, around.clock);
    const DayNumber today =
        LocalZone{}.day(std::chrono::floor<std::chrono::milliseconds>(around.clock.now()));
    const auto second = secondFolder(dataFile);
    SecondFolderResult copied;
    if (!second) copied = tl::unexpected(second.error());
    if (second && *second) copied = bringCopy(Backups(file, around.clock).folder(), **second, today);
    if (!copied && isFirstFailure(dataFile, today)) complain(around, program, describe(copied.error()));
}

} // namespace

void printLine(std::ostream& stream, const QString& text) {
    stream << text.toStdString() << '\n' << std::flush;
}

std::array<Command, 15> commands() {
    return {monitorCommand(),    patientsCommand(),    downloadCommand(),   readingsCommand(),
            statisticsCommand(), averageCommand(),     reportCommand(),     exportXmlCommand(),
            exportCsvCommand(),  exportTableCommand(), exportFhirCommand(), importCommand(),
            settingsCommand(),   backupCommand(),      privacyCommand()};
}

std::optional<Command> commandByName(const QString& name) {
    const auto table = commands();
    const auto* found = std::ranges::find_if(
        table, [&](const Command& command) { return name == QLatin1String(command.name); });
    return found == table.end() ? std::nullopt : std::optional(*found);
}

int run(const QStringList& given, Surroundings& around) {
    const LanguageOption language = takeLanguageOption(given);
    const Arguments arguments = takeSimulatedMonitor(language.words);
    const auto command = commandByName(arguments.words.value(0));
    const QString program = command ? u"zel "_s + QLatin1String(command->name) : u"zel"_s;
    const QDateTime before = dataFileTime(around);
    const QString problem = languageProblem(language);
    CommandResult result = !problem.isEmpty() ? wrongUsage(problem)
                           : command          ? runCommand(*command, arguments, around)
                                              : runGlobal(arguments, around);
    if (dataFileTime(around) != before) copyToSecondFolder(around, program);
    if (result && !around.out.flush()) result = failed(qtTrId("CliOutputFailed"));
    if (!result) tell(around, program, result.error());
    return static_cast<int>(result ? ExitStatus::done : result.error().status);
}

} // namespace zel::cli

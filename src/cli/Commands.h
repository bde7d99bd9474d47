#pragma once

#include "cli/Command.h"

#include <QString>
#include <QStringList>

#include <array>

namespace zel::cli {

[[nodiscard]] Command averageCommand();
[[nodiscard]] Command backupCommand();
[[nodiscard]] Command downloadCommand();
[[nodiscard]] Command exportCsvCommand();
[[nodiscard]] Command exportFhirCommand();
[[nodiscard]] Command exportTableCommand();
[[nodiscard]] Command exportXmlCommand();
[[nodiscard]] Command importCommand();
[[nodiscard]] Command monitorCommand();
[[nodiscard]] Command patientsCommand();
[[nodiscard]] Command privacyCommand();
[[nodiscard]] Command readingsCommand();
[[nodiscard]] Command reportCommand();
[[nodiscard]] Command settingsCommand();
[[nodiscard]] Command statisticsCommand();

/// Every command, in the order in which the help lists them.
[[nodiscard]] std::array<Command, 15> commands();
[[nodiscard]] std::optional<Command> commandByName(const QString& name);

/// Does what \p arguments (without the program's name) ask for. \return the exit status
[[nodiscard]] int run(const QStringList& arguments, Surroundings& around);

} // namespace zel::cli

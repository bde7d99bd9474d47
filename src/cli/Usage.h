#pragma once

#include "cli/Command.h"

#include <QString>
#include <QStringList>

#include <tl/expected.hpp>

#include <memory>
#include <optional>

namespace zel::cli {

/// The arguments without --simulated-monitor[=FILE], which may stand anywhere and whose value is optional.
struct Arguments {
    QStringList words;
    std::optional<QString> simulatedMonitor;
    bool hasEmptyPlan = false; ///< "--simulated-monitor=" with nothing behind it
};
[[nodiscard]] Arguments takeSimulatedMonitor(const QStringList& arguments);

/// Reads a command's options; any that is unknown, lacks its value or is given twice is wrong usage.
[[nodiscard]] tl::expected<std::unique_ptr<QCommandLineParser>, Failure>
parseOptions(const Command& command, const QStringList& words);

/// Says on standard error what went wrong; \p program as the user called it, with its command.
void complain(Surroundings& around, const QString& program, const QString& words);

/// The value of an option that must be given.
[[nodiscard]] tl::expected<QString, Failure> requiredValue(const Request& request, const QString& option);

/// An option whose help stands in the command's own text.
[[nodiscard]] QCommandLineOption flag(const QString& name);
[[nodiscard]] QCommandLineOption valued(const QString& name);

} // namespace zel::cli

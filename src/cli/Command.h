#pragma once

#include "cli/Surroundings.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QList>
#include <QString>

#include <tl/expected.hpp>

#include <optional>

namespace zel::cli {

enum class ExitStatus { done = 0, failed = 1, wrongUsage = 2 };

/// Why a command did not do its job. Empty words: the user has been told already.
struct Failure {
    ExitStatus status = ExitStatus::failed;
    QString words;
};

using CommandResult = tl::expected<void, Failure>;

[[nodiscard]] inline tl::unexpected<Failure> failed(const QString& words) {
    return tl::unexpected(Failure{ExitStatus::failed, words});
}
[[nodiscard]] inline tl::unexpected<Failure> wrongUsage(const QString& words) {
    return tl::unexpected(Failure{ExitStatus::wrongUsage, words});
}

/// What the user asked of one command.
struct Request {
    const QCommandLineParser& options;
    std::optional<QString> simulatedMonitor; ///< as Surroundings::attach takes it
};

/// One row of the table of commands.
struct Command {
    const char* name;
    QString (*help)();
    QList<QCommandLineOption> (*options)(); ///< --help and --simulated-monitor aside, which all have
    CommandResult (*run)(const Request& request, Surroundings& around);
    int mostWords = 0;           ///< how many words it takes besides its options
    const char* repeatable = ""; ///< the option that may be given several times
};

} // namespace zel::cli

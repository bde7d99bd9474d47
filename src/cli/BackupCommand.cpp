#include "cli/Commands.h"
#include "cli/Csv.h"
#include "cli/Usage.h"
#include "store/Backups.h"

#include <QDir>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

CommandResult told(const StoreError& error) { return failed(describe(error)); }

CommandResult list(const Backups& backups, Surroundings& around) {
    printLine(around.out, u"name,bytes,patients,readings,last-reading"_s);
    for (const Backup& copy : backups.list()) {
        const QString begin = copy.name + u',' + QString::number(copy.size) + u',';
        const auto content = backups.content(copy.name);
        const QString rest = content ? u"%1,%2,%3"_s.arg(content->patients)
                                           .arg(content->readings)
                                           .arg(dayText(content->lastReading, u"yyyy-MM-dd"_s))
                                     : u"unreadable,,"_s;
        printLine(around.out, begin + rest);
    }
    return {};
}

CommandResult create(const Backups& backups, Surroundings& around) {
    const auto name = backups.create();
    if (!name) return told(name.error());
    printLine(around.out, u"written: "_s + backups.folder() + u'/' + *name);
    return {};
}

CommandResult restore(const Backups& backups, const QString& name, Surroundings& around) {
    const auto kept = backups.restore(name);
    if (!kept) return told(kept.error());
    printLine(around.out, u"restored: "_s + name);
    if (!kept->isEmpty()) printLine(around.out, u"kept: "_s + *kept);
    return {};
}

/// Also with a data file that cannot be read, which is when copies are needed.
CommandResult runBackup(const Request& request, Surroundings& around) {
    if (QDir::isRelativePath(around.paths.home)) return failed(qtTrId("CliNoHome"));
    const DataFile file(around.paths, around.clock);
    const Backups backups(file, around.clock);
    const QStringList words = request.options.positionalArguments();
    const QString job = words.value(0);
    if (job == "list"_L1 && words.size() == 1) return list(backups, around);
    if (job == "create"_L1 && words.size() == 1) return create(backups, around);
    if (job == "restore"_L1 && words.size() == 2) return restore(backups, words.at(1), around);
    return wrongUsage(qtTrId("CliBackupUsage"));
}

} // namespace

Command backupCommand() {
    return {"backup", [] { return qtTrId("CliHelpBackup"); }, [] { return QList<QCommandLineOption>{}; },
            runBackup, 2};
}

} // namespace zel::cli

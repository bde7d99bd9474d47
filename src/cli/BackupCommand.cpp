#include "cli/Commands.h"
#include "cli/Usage.h"
#include "store/CopyContent.h"
#include "store/CsvText.h"
#include "store/SecondFolder.h"

#include <QDir>
#include <QFileInfo>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

struct Job {
    const Backups& backups;
    QString dataFile;
};

CommandResult told(const StoreError& error) { return failed(describe(error)); }

CommandResult told(const SecondFolderError& error) { return failed(describe(error)); }

void print(const QString& name, qint64 size, const QString& path, Surroundings& around) {
    const QString begin = csvLine({name}) + u',' + QString::number(size) + u',';
    const auto content = contentOfCopy(path);
    const QString rest = content ? u"%1,%2,%3"_s.arg(content->patients)
                                       .arg(content->readings)
                                       .arg(dayText(content->lastReading, u"yyyy-MM-dd"_s))
                                 : u"unreadable,,"_s;
    printLine(around.out, begin + rest);
}

/// Those of the second folder by their whole path, as restore takes them.
CommandResult list(const Job& job, Surroundings& around) {
    printLine(around.out, u"name,bytes,patients,readings,last-reading"_s);
    for (const Backup& copy : job.backups.list())
        print(copy.name, copy.size, job.backups.folder() + u'/' + copy.name, around);
    const auto second = secondFolder(job.dataFile);
    if (!second) return told(second.error());
    if (!*second) return {};
    if (!(*second)->isThere()) return told({SecondFolderProblem::away, (*second)->folder, {}});
    for (const Backup& copy : (*second)->list())
        print((*second)->path(copy.name), copy.size, (*second)->path(copy.name), around);
    return {};
}

CommandResult create(const Backups& backups, Surroundings& around) {
    const auto name = backups.create();
    if (!name) return told(name.error());
    printLine(around.out, u"written: "_s + backups.folder() + u'/' + *name);
    return {};
}

/// A copy of the second folder becomes one of the usual folder first.
tl::expected<QString, StoreError> nearName(const Job& job, const QString& name, const Clock& clock) {
    const auto second = secondFolder(job.dataFile).value_or(std::nullopt);
    const QString path = QFileInfo(name).absoluteFilePath();
    const bool isThere = second && name.contains(u'/') && QFileInfo(path).path() == second->copies();
    if (!isThere || !backupOfName(QFileInfo(path).fileName())) return name;
    if (const auto readable = contentOfCopy(path); !readable) return tl::unexpected(readable.error());
    return fetchCopy(job.backups.folder(), path, std::chrono::floor<std::chrono::milliseconds>(clock.now()));
}

CommandResult restore(const Job& job, const QString& given, Surroundings& around) {
    const auto near = nearName(job, given, around.clock);
    if (!near) return told(near.error());
    const QString& name = *near;
    const auto kept = job.backups.restore(name);
    if (!kept) return told(kept.error());
    printLine(around.out, u"restored: "_s + name);
    if (!kept->isEmpty()) printLine(around.out, u"kept: "_s + *kept);
    return {};
}

CommandResult folder(const Job& job, const QString& wanted, bool ends, Surroundings& around) {
    if (ends || !wanted.isEmpty())
        if (const auto named = nameSecondFolder(job.dataFile, wanted); !named) return told(named.error());
    const auto second = secondFolder(job.dataFile);
    if (!second) return told(second.error());
    printLine(around.out, u"folder: "_s + (*second ? (*second)->folder : QString()));
    return {};
}

/// Also with a data file that cannot be read, which is when copies are needed.
CommandResult runBackup(const Request& request, Surroundings& around) {
    if (QDir::isRelativePath(around.paths.home)) return failed(qtTrId("CliNoHome"));
    const DataFile file(around.paths, around.clock);
    const Backups backups(file, around.clock);
    const Job all{backups, file.getZELXMLPath()};
    const bool ends = request.options.isSet(u"none"_s);
    const QStringList words = request.options.positionalArguments();
    const QString job = words.value(0);
    if (job == "folder"_L1 && words.size() + (ends ? 1 : 0) <= 2)
        return folder(all, words.value(1), ends, around);
    if (ends) return wrongUsage(qtTrId("CliBackupUsage"));
    if (job == "list"_L1 && words.size() == 1) return list(all, around);
    if (job == "create"_L1 && words.size() == 1) return create(backups, around);
    if (job == "restore"_L1 && words.size() == 2) return restore(all, words.at(1), around);
    return wrongUsage(qtTrId("CliBackupUsage"));
}

} // namespace

Command backupCommand() {
    return {"backup", [] { return qtTrId("CliHelpBackup"); }, [] { return QList{flag(u"none"_s)}; },
            runBackup, 2};
}

} // namespace zel::cli

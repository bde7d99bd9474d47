#include "cli/Commands.h"
#include "cli/ExportTarget.h"
#include "cli/Usage.h"
#include "store/WrittenNames.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

/// A folder that is there, or a file; a name that ends otherwise is a folder's with a slip in it.
tl::expected<QString, Failure> tablePlace(const Request& request) {
    const QString place = request.options.positionalArguments().value(0);
    if (place.isEmpty()) return wrongUsage(qtTrId("CliFolderMissing"));
    const bool isFile = place.endsWith(u".csv"_s, Qt::CaseInsensitive);
    const QString folder = isFile ? QFileInfo(place).path() : place;
    if (!QDir(place).exists() && !QDir(folder).exists()) return failed(qtTrId("CliNoFolder").arg(folder));
    return place;
}

/// A table of its own for each patient.
void writeTables(const ExportJob& job, ExportTally& tally) {
    WrittenNames names;
    for (const QString& ID : job.patients.IDs) {
        const QString path = job.pathOf(ID, u".table.csv"_s);
        StoreResult result = names.check(ID, path);
        if (result) result = job.store->exportTable(path, {ID}, job.replace);
        if (result) names.add(ID, path);
        tally.count(result, path);
    }
}

/// One table of all of them. Who has no reading, as anybody without an ID, has no line that would show it.
void writeTable(const ExportJob& job, ExportTally& tally, Surroundings& around) {
    tally.count(job.store->exportTable(job.place, job.patients.IDs, job.replace), job.place);
    const auto hasNone = [&job](const QString& ID) { return job.store->getReadingForID(ID).empty(); };
    const auto without = std::ranges::count_if(job.patients.IDs, hasNone);
    if (tally.isAnyWritten() && without > 0)
        complain(around, u"zel export-table"_s, qtTrId("CliNoLineInTable", static_cast<int>(without)));
}

CommandResult runExportTable(const Request& request, Surroundings& around) {
    const auto job = exportJob(request, around, Whom::oneOrAll, tablePlace);
    if (!job) return tl::unexpected(job.error());
    const bool isFolder = QDir(job->place).exists();
    ExportTally tally(u"zel export-table"_s, around);
    if (isFolder)
        writeTables(*job, tally);
    else
        writeTable(*job, tally, around);
    tally.countLeftOut(job->patients);
    const QString folder = isFolder ? job->place : QFileInfo(job->place).path();
    return tally.finish([&] { return tally.isAnyWritten() ? flushExports(folder) : StoreResult(); });
}

} // namespace

Command exportTableCommand() {
    return {"export-table", [] { return qtTrId("CliHelpExportTable"); },
            [] {
                return QList<QCommandLineOption>{valued(u"patient"_s), flag(u"force"_s)};
            },
            runExportTable, 1};
}

} // namespace zel::cli

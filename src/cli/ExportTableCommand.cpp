#include "cli/Commands.h"
#include "cli/ExportTarget.h"
#include "cli/OpenStore.h"
#include "cli/Usage.h"
#include "store/Text.h"
#include "store/WrittenNames.h"

#include <QDir>
#include <QFileInfo>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

/// Writes tables, and says of each whether it was written.
class TableWriter {
public:
    TableWriter(const DataStore& from, Replace asked, Surroundings& told)
        : store(from), replace(asked), around(told) {}

    void write(const QString& path, const QStringList& IDs) {
        const QString ID = IDs.value(0);
        StoreResult result = names.check(ID, path);
        if (result) result = store.exportTable(path, IDs, replace);
        if (!result) return complainOf(result.error());
        printLine(around.out, u"written: "_s + path);
        names.add(ID, path);
        isAnyWritten = true;
    }
    [[nodiscard]] CommandResult finish(const QString& folder) {
        if (!isAnyWritten) return failed({});
        if (const StoreResult flushed = flushExports(folder); !flushed) complainOf(flushed.error());
        return isComplete ? CommandResult() : CommandResult(failed({}));
    }

private:
    void complainOf(const StoreError& error) {
        isComplete = false;
        complain(around, u"zel export-table"_s, reason(error));
    }

    const DataStore& store;
    Replace replace;
    Surroundings& around;
    WrittenNames names;
    bool isAnyWritten = false;
    bool isComplete = true;
};

/// One without an ID has no readings.
QStringList patientsWithID(const DataStore& store) {
    QStringList IDs;
    for (const PatientModel& patient : store.getPatientArray())
        if (!IsEmptyID(patient.ID) && !IDs.contains(patient.ID)) IDs.append(patient.ID);
    return IDs;
}

/// A folder that is there, or a file; a name that ends otherwise is a folder's with a slip in it.
tl::expected<QString, Failure> tablePlace(const Request& request) {
    const QString place = request.options.positionalArguments().value(0);
    if (place.isEmpty()) return wrongUsage(qtTrId("CliFolderMissing"));
    const bool isFile = place.endsWith(u".csv"_s, Qt::CaseInsensitive);
    const QString folder = isFile ? QFileInfo(place).path() : place;
    if (!QDir(place).exists() && !QDir(folder).exists()) return failed(qtTrId("CliNoFolder").arg(folder));
    return place;
}

CommandResult runExportTable(const Request& request, Surroundings& around) {
    const auto place = tablePlace(request);
    if (!place) return tl::unexpected(place.error());
    const bool isOne = request.options.isSet(u"patient"_s);
    const auto ID = isOne ? requiredValue(request, u"patient"_s) : QString();
    if (!ID) return tl::unexpected(ID.error());
    const OpenedStore store = openStore(around);
    if (!store) return tl::unexpected(store.error());
    if (CommandResult known = isOne ? checkPatient(**store, *ID) : CommandResult(); !known) return known;
    const QStringList IDs = isOne ? QStringList(*ID) : patientsWithID(**store);
    TableWriter writer(**store, replaceOf(request), around);
    if (!QDir(*place).exists()) {
        writer.write(*place, IDs);
        return writer.finish(QFileInfo(*place).path());
    }
    for (const QString& each : IDs)
        writer.write(exportPath(*place, each, u".table.csv"_s), {each});
    return IDs.isEmpty() ? CommandResult() : writer.finish(*place);
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

#include "cli/Commands.h"
#include "cli/ExportTarget.h"
#include "cli/OpenStore.h"
#include "cli/Usage.h"

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

/// Each patient that can be written is; the others are named.
CommandResult writeAll(const PatientExport& all, const QStringList& IDs, const Request& request,
                       Surroundings& around) {
    const QString folder = request.options.positionalArguments().constFirst();
    bool isComplete = true;
    for (const QString& ID : IDs) {
        if (const StoreResult result = all.writeXml(ID, folder, replaceOf(request))) {
            printLine(around.out, written(folder, ID, u".xml"_s));
        } else {
            complain(around, u"zel export-xml"_s, reason(result.error()));
            isComplete = false;
        }
    }
    if (const StoreResult flushed = all.finish(); !flushed) return failed(reason(flushed.error()));
    if (!isComplete) return failed({});
    return {};
}

CommandResult runExportXml(const Request& request, Surroundings& around) {
    if (const auto folder = folderOf(request); !folder) return tl::unexpected(folder.error());
    const bool isOne = request.options.isSet(u"patient"_s);
    const auto ID = isOne ? requiredValue(request, u"patient"_s) : QString();
    if (!ID) return tl::unexpected(ID.error());
    const OpenedStore store = openStore(around);
    if (!store) return tl::unexpected(store.error());
    if (CommandResult known = isOne ? checkPatient(**store, *ID) : CommandResult(); !known) return known;
    const auto all = (*store)->beginExport();
    if (!all) return failed(describe(all.error()));
    return writeAll(*all, isOne ? QStringList(*ID) : all->patients(), request, around);
}

CommandResult runExportCsv(const Request& request, Surroundings& around) {
    const auto folder = folderOf(request);
    if (!folder) return tl::unexpected(folder.error());
    const auto ID = requiredValue(request, u"patient"_s);
    if (!ID) return tl::unexpected(ID.error());
    const OpenedStore store = openStore(around);
    if (!store) return tl::unexpected(store.error());
    if (CommandResult known = checkPatient(**store, *ID); !known) return known;
    if (const StoreResult result = (*store)->exportCSV(*folder, *ID, replaceOf(request)); !result)
        return failed(reason(result.error()));
    printLine(around.out, written(*folder, *ID, u".csv"_s));
    return {};
}

QList<QCommandLineOption> exportOptions() { return {valued(u"patient"_s), flag(u"force"_s)}; }

} // namespace

Command exportXmlCommand() {
    return {"export-xml", [] { return qtTrId("CliHelpExportXml"); }, exportOptions, runExportXml, 1};
}

Command exportCsvCommand() {
    return {"export-csv", [] { return qtTrId("CliHelpExportCsv"); }, exportOptions, runExportCsv, 1};
}

} // namespace zel::cli

#include "cli/Commands.h"
#include "cli/OpenStore.h"
#include "cli/Usage.h"

#include <QDir>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

tl::expected<QString, Failure> folderOf(const Request& request) {
    const QString folder = request.options.positionalArguments().value(0);
    if (folder.isEmpty()) return wrongUsage(qtTrId("CliFolderMissing"));
    if (!QDir{folder}.exists()) return failed(qtTrId("CliNoFolder").arg(folder));
    return folder;
}

Replace replaceOf(const Request& request) {
    return request.options.isSet(u"force"_s) ? Replace::yes : Replace::no;
}

QString reason(const StoreError& error) {
    const QString words = describeExport(error);
    return error.code == StoreErrorCode::alreadyExists ? words + u' ' + qtTrId("CliForceReplaces") : words;
}

QString written(const QString& folder, const QString& ID, const QString& extension) {
    return u"written: "_s + exportPath(folder, ID, extension);
}

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

#include "cli/Commands.h"
#include "cli/ExportTarget.h"
#include "cli/Usage.h"

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

CommandResult runExportXml(const Request& request, Surroundings& around) {
    const auto job = exportJob(request, around, Whom::oneOrAll);
    if (!job) return tl::unexpected(job.error());
    const auto all = job->store->beginExport();
    if (!all) return failed(describe(all.error()));
    const bool isOne = request.options.isSet(u"patient"_s);
    ExportTally tally(u"zel export-xml"_s, around);
    for (const QString& ID : isOne ? job->patients.IDs : all->patients())
        tally.count(all->writeXml(ID, job->place, job->replace), job->pathOf(ID, u".xml"_s));
    return tally.finish([&all] { return all->finish(); });
}

CommandResult runExportCsv(const Request& request, Surroundings& around) {
    const auto job = exportJob(request, around, Whom::one);
    if (!job) return tl::unexpected(job.error());
    const QString ID = job->patients.IDs.constFirst();
    ExportTally tally(u"zel export-csv"_s, around);
    tally.count(job->store->exportCSV(job->place, ID, job->replace), job->pathOf(ID, u".csv"_s));
    return tally.finish([] { return StoreResult(); });
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

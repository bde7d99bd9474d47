#include "cli/Commands.h"
#include "cli/ExportTarget.h"
#include "cli/RuleOption.h"
#include "cli/Usage.h"
#include "fhir/FhirExport.h"

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

CommandResult runExportFhir(const Request& request, Surroundings& around) {
    const auto rule = ruleOption(request);
    if (!rule) return tl::unexpected(rule.error());
    const auto job = exportJob(request, around, Whom::oneOrAll);
    if (!job) return tl::unexpected(job.error());
    fhir::FhirExport bundles(*job->store, job->place, *rule);
    ExportTally tally(u"zel export-fhir"_s, around);
    for (const QString& ID : job->patients.IDs)
        tally.count(bundles.write(ID, job->replace), job->pathOf(ID, fhir::fileExtension.toString()));
    tally.countLeftOut(job->patients);
    return tally.finish([&bundles] { return bundles.finish(); });
}

} // namespace

Command exportFhirCommand() {
    return {"export-fhir", [] { return qtTrId("CliHelpExportFhir"); },
            [] {
                return QList{valued(u"patient"_s), valued(u"rule"_s), flag(u"force"_s)};
            },
            runExportFhir, 1};
}

} // namespace zel::cli

#include "cli/Commands.h"
#include "cli/ExportTarget.h"
#include "cli/OpenStore.h"
#include "cli/RuleOption.h"
#include "cli/Usage.h"
#include "fhir/FhirExport.h"

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

QStringList allPatients(const DataStore& store) {
    QStringList IDs;
    for (const PatientModel& patient : store.getPatientArray())
        IDs += patient.ID;
    IDs.removeDuplicates(); // in a damaged file two have one
    return IDs;
}

/// Each patient that can be written is; the others are named.
CommandResult writeBundles(fhir::FhirExport& bundles, const QStringList& IDs, const Request& request,
                           Surroundings& around) {
    const QString folder = request.options.positionalArguments().constFirst();
    bool isComplete = true;
    for (const QString& ID : IDs) {
        if (const StoreResult result = bundles.write(ID, replaceOf(request))) {
            printLine(around.out, written(folder, ID, fhir::fileExtension.toString()));
        } else {
            complain(around, u"zel export-fhir"_s, reason(result.error()));
            isComplete = false;
        }
    }
    if (const StoreResult flushed = bundles.finish(); !flushed) return failed(reason(flushed.error()));
    if (!isComplete) return failed({});
    return {};
}

CommandResult runExportFhir(const Request& request, Surroundings& around) {
    const auto folder = folderOf(request);
    if (!folder) return tl::unexpected(folder.error());
    const bool isOne = request.options.isSet(u"patient"_s);
    const auto ID = isOne ? requiredValue(request, u"patient"_s) : QString();
    if (!ID) return tl::unexpected(ID.error());
    const auto rule = ruleOption(request);
    if (!rule) return tl::unexpected(rule.error());
    const OpenedStore store = openStore(around);
    if (!store) return tl::unexpected(store.error());
    if (CommandResult known = isOne ? checkPatient(**store, *ID) : CommandResult(); !known) return known;
    fhir::FhirExport bundles(**store, *folder, *rule);
    return writeBundles(bundles, isOne ? QStringList(*ID) : allPatients(**store), request, around);
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

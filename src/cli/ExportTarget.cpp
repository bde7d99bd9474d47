#include "cli/ExportTarget.h"

#include "cli/Usage.h"

#include <QDir>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

/// Why a file was not written, in words, also how it would be.
QString exportFailure(const StoreError& error) {
    const QString words = describeExport(error);
    return error.code == StoreErrorCode::alreadyExists ? words + u' ' + qtTrId("CliForceReplaces") : words;
}

} // namespace

QString ExportJob::pathOf(const QString& ID, const QString& extension) const {
    return exportPath(place, ID, extension, store->isDemonstration());
}

tl::expected<QString, Failure> folderOf(const Request& request) {
    const QString folder = request.options.positionalArguments().value(0);
    if (folder.isEmpty()) return wrongUsage(qtTrId("CliFolderMissing"));
    if (!QDir{folder}.exists()) return failed(qtTrId("CliNoFolder").arg(folder));
    return folder;
}

tl::expected<ExportJob, Failure> exportJob(const Request& request, Surroundings& around, Whom whom,
                                           PlaceOf placeOf) {
    const auto place = placeOf(request);
    if (!place) return tl::unexpected(place.error());
    const bool isOne = whom == Whom::one || request.options.isSet(u"patient"_s);
    const auto ID = isOne ? requiredValue(request, u"patient"_s) : QString();
    if (!ID) return tl::unexpected(ID.error());
    OpenedStore store = openStore(around);
    if (!store) return tl::unexpected(store.error());
    if (CommandResult known = isOne ? checkPatient(**store, *ID) : CommandResult(); !known)
        return tl::unexpected(known.error());
    AllPatients patients = isOne ? AllPatients{.IDs = {*ID}} : allPatients((*store)->getPatientArray());
    const auto replace = request.options.isSet(u"force"_s) ? Replace::yes : Replace::no;
    return ExportJob{*place, replace, std::move(*store), std::move(patients)};
}

ExportTally::ExportTally(QString program, Surroundings& around) : name(std::move(program)), told(around) {}

void ExportTally::count(const StoreResult& result, const QString& path) {
    if (result) {
        printLine(told.out, u"written: "_s + path);
        anyWritten = true;
    } else {
        complain(told, name, exportFailure(result.error()));
        isComplete = false;
    }
}

void ExportTally::countLeftOut(const AllPatients& patients) {
    if (patients.sameID == 0) return;
    complain(told, name, qtTrId("CliSameIDLeftOut", patients.sameID));
    isComplete = false;
}

CommandResult ExportTally::finish(const std::function<StoreResult()>& flush) {
    if (const StoreResult flushed = flush(); !flushed) return failed(exportFailure(flushed.error()));
    return isComplete ? CommandResult() : CommandResult(failed({}));
}

} // namespace zel::cli

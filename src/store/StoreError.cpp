#include "store/StoreError.h"

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QString sentence(StoreErrorCode code) {
    switch (code) {
    case StoreErrorCode::notReadable: return qtTrId("StoreNotReadable");
    case StoreErrorCode::readFailed: return qtTrId("StoreReadFailed");
    case StoreErrorCode::notCreated: return qtTrId("StoreNotCreated");
    case StoreErrorCode::tooLarge: return qtTrId("StoreTooLarge");
    case StoreErrorCode::notParsed: return qtTrId("StoreNotParsed");
    case StoreErrorCode::notWritable: return qtTrId("StoreNotWritable");
    case StoreErrorCode::writeFailed: return qtTrId("StoreWriteFailed");
    case StoreErrorCode::diskFull: return qtTrId("StoreDiskFull");
    case StoreErrorCode::quotaReached: return qtTrId("StoreQuotaReached");
    case StoreErrorCode::sizeLimit: return qtTrId("StoreSizeLimit");
    case StoreErrorCode::notFlushed: return qtTrId("StoreNotFlushed");
    case StoreErrorCode::unreadable: return qtTrId("StoreUnreadable");
    case StoreErrorCode::busy: return qtTrId("StoreBusy");
    case StoreErrorCode::lockBlocked: return qtTrId("StoreLockBlocked");
    case StoreErrorCode::noSuchRecord: return qtTrId("StoreNoSuchRecord");
    case StoreErrorCode::changedElsewhere: return qtTrId("StoreChangedElsewhere");
    case StoreErrorCode::alreadyKnown: return qtTrId("StoreAlreadyKnown");
    case StoreErrorCode::invalidRecord: return qtTrId("StoreInvalidRecord");
    case StoreErrorCode::readingGone: return qtTrId("StoreReadingGone");
    case StoreErrorCode::readingKnown: return qtTrId("StoreReadingKnown");
    case StoreErrorCode::readingRefused: return qtTrId("StoreReadingRefused");
    case StoreErrorCode::notManual: return qtTrId("StoreNotManual");
    case StoreErrorCode::noReason: return qtTrId("StoreNoReason");
    case StoreErrorCode::alreadyExists: return qtTrId("ExportAlreadyExists");
    case StoreErrorCode::isDataFile: return qtTrId("ExportIsDataFile");
    case StoreErrorCode::noSuchBackup: return qtTrId("StoreNoSuchBackup");
    case StoreErrorCode::noRoomForBackup: return qtTrId("StoreNoRoomForBackup");
    case StoreErrorCode::noStep: return qtTrId("StoreNoStep");
    case StoreErrorCode::stepChanged: return qtTrId("StoreStepChanged");
    case StoreErrorCode::stepGone: return qtTrId("StoreStepGone");
    case StoreErrorCode::stepThere: return qtTrId("StoreStepThere");
    case StoreErrorCode::stepPatientKnown: return qtTrId("StoreStepPatientKnown");
    case StoreErrorCode::stepPatientGone: return qtTrId("StoreStepPatientGone");
    case StoreErrorCode::stepHasRecords: return qtTrId("StoreStepHasRecords");
    case StoreErrorCode::notMadePrivate: return qtTrId("StoreNotMadePrivate");
    case StoreErrorCode::noPermissions: return qtTrId("StoreNoPermissions");
    case StoreErrorCode::sameFileName: return qtTrId("ExportSameFileName");
    }
    return {};
}

QString withDetail(const QString& text, const StoreError& error) {
    return error.detail.isEmpty() ? text : text + u'\n' + error.detail;
}

} // namespace

bool isStepRefusal(StoreErrorCode code) {
    using enum StoreErrorCode;
    return code == stepChanged || code == stepGone || code == stepThere || code == stepPatientKnown
           || code == stepPatientGone || code == stepHasRecords;
}

/// Not every sentence has a place for the path, and Qt logs what it finds no place for.
QString describe(const StoreError& error) {
    const QString text = sentence(error.code);
    return withDetail(text.contains(u"%1"_s) ? text.arg(error.path) : text, error);
}

QString describeWithin(const QString& frame, const StoreError& error) {
    return error.code == StoreErrorCode::notFlushed ? describe(error) : frame.arg(describe(error));
}

QString describeExport(const StoreError& error) {
    if (error.code == StoreErrorCode::notFlushed)
        return withDetail(qtTrId("ExportNotFlushed").arg(error.path), error);
    const bool isWriting =
        error.code == StoreErrorCode::notWritable || error.code == StoreErrorCode::writeFailed;
    return isWriting ? withDetail(qtTrId("ExportNotWritten").arg(error.path), error) : describe(error);
}

} // namespace zel

#include "store/StoreError.h"

namespace zel {

namespace {

QString sentence(StoreErrorCode code) {
    switch (code) {
    case StoreErrorCode::notReadable: return qtTrId("StoreNotReadable");
    case StoreErrorCode::notCreated: return qtTrId("StoreNotCreated");
    case StoreErrorCode::notParsed: return qtTrId("StoreNotParsed");
    case StoreErrorCode::notWritable: return qtTrId("StoreNotWritable");
    case StoreErrorCode::writeFailed: return qtTrId("StoreWriteFailed");
    case StoreErrorCode::busy: return qtTrId("StoreBusy");
    case StoreErrorCode::noSuchRecord: return qtTrId("StoreNoSuchRecord");
    case StoreErrorCode::alreadyKnown: return qtTrId("StoreAlreadyKnown");
    case StoreErrorCode::invalidRecord: return qtTrId("StoreInvalidRecord");
    }
    return {};
}

} // namespace

QString describe(const StoreError& error) {
    const QString text = sentence(error.code).arg(error.path);
    return error.detail.isEmpty() ? text : text + u'\n' + error.detail;
}

} // namespace zel

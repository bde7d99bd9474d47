#pragma once

#include <QString>

#include <tl/expected.hpp>

namespace zel {

enum class StoreErrorCode {
    notReadable,      ///< the file is not there or may not be read
    readFailed,       ///< the file is there and may be read, but its disk does not give it out
    notCreated,       ///< there is none yet, and it could not be made
    tooLarge,         ///< above largestFile
    notParsed,        ///< its content is no well-formed XML, or its root is not ZEL
    notWritable,      ///< the file or its folder may not be written
    writeFailed,      ///< writing began and failed; the file is as it was before
    diskFull,         ///< as writeFailed
    quotaReached,     ///< as writeFailed: the user may store no more on this disk
    sizeLimit,        ///< as writeFailed: files may not become so large here
    notFlushed,       ///< the file was replaced, but may be the older one again after a power cut
    unreadable,       ///< as writeFailed: what was to be written could not be read again
    busy,             ///< another program holds the file
    lockBlocked,      ///< a folder or another thing, the path, is in the place of the file's lock
    noSuchRecord,     ///< no record with the given ID
    changedElsewhere, ///< the file during the write, or several records with the given ID, none as it was
                      ///< read here
    alreadyKnown,     ///< a record with the given ID exists
    invalidRecord,    ///< the record lacks what it needs to be stored
    readingGone,      ///< the reading is no longer in the file
    readingKnown,     ///< the patient has a reading of that minute with these values
    readingRefused,   ///< what was typed is no reading, detail says why
    notManual,        ///< a reading that was downloaded is neither changed nor deleted
    noReason,         ///< a reading is left out for a reason only
    alreadyExists,    ///< the file to write is there and may not be replaced
    isDataFile,       ///< the file to write is the data file itself
    noSuchBackup,     ///< no copy of the data file has that name, the path
    noRoomForBackup,  ///< the copies may take no more of the disk; the path is their folder
    noStep,           ///< there is nothing to be undone or redone
    stepChanged,      ///< what the step changed has been changed since
    stepGone,         ///< what the step changed is no longer there
    stepThere,        ///< what the step removed is there again
    stepPatientKnown, ///< a patient with the ID of one who would come back is there by now
    stepPatientGone,  ///< the patient whose record would come back is no longer there
    stepHasRecords,   ///< a patient who would go has readings or comments that the step did not bring
    notMadePrivate,   ///< others may still read it, detail says why
    noPermissions,    ///< likewise, since its file system has no permissions
    sameFileName,     ///< the disk takes the file for the one just written for the patient in detail
};

/// Why the store could not do what it was asked. Nothing was changed, but for notFlushed.
struct StoreError {
    StoreErrorCode code;
    QString path;   ///< the file concerned, or the ID for the record codes
    QString detail; ///< the parser's or the system's own words, or an ID; may be empty

    bool operator==(const StoreError&) const = default;
};

using StoreResult = tl::expected<void, StoreError>;

/// Whether the file holds what was to be written, also if that may not outlast a power cut.
template <class Value>
[[nodiscard]] bool isInPlace(const tl::expected<Value, StoreError>& result) {
    return result || result.error().code == StoreErrorCode::notFlushed;
}

/// The file is no longer such that a step can be undone or redone; trying again does not help.
[[nodiscard]] bool isStepRefusal(StoreErrorCode code);

/// The error in plain words for the user, from the translation table.
[[nodiscard]] QString describe(const StoreError& error);
/// As describe(), put into \p frame, a text with a place for it that says what was not done; alone where the
/// file holds all that was to be written.
[[nodiscard]] QString describeWithin(const QString& frame, const StoreError& error);
/// As describe(), of a file that patients were to be exported to.
[[nodiscard]] QString describeExport(const StoreError& error);

} // namespace zel

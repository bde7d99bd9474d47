#include "store/DataStore.h"
#include "store/DocumentElements.h"
#include "store/Log.h"
#include "store/NewReadings.h"
#include "store/RecordXml.h"
#include "store/Text.h"

#include <algorithm>

namespace zel {

namespace {

using Edit = DataFile::Edit;

/// \return how many were removed
int removeElementsOf(pugi::xml_node root, const char* name, const QString& ID, StepRecorder& recorder) {
    int removed = 0;
    for (pugi::xml_node at = root.first_child(); at;) {
        const pugi::xml_node next = at.next_sibling();
        if (isElement(at, name) && childText(at, "ID") == ID) {
            recorder.willRemove(at);
            root.remove_child(at);
            ++removed;
        }
        at = next;
    }
    return removed;
}

tl::unexpected<StoreError> refused(const QString& ID) {
    return tl::unexpected{StoreError{StoreErrorCode::invalidRecord, ID, {}}};
}

tl::unexpected<StoreError> noSuch(const QString& ID) {
    return tl::unexpected{StoreError{StoreErrorCode::noSuchRecord, ID, {}}};
}

/// An ID that the file cannot hold as it is would never be found again.
bool canBeID(const QString& ID) {
    return !IsEmptyID(ID) && std::ranges::none_of(ID, [](QChar c) { return c < u' ' || c.isNonCharacter(); })
           && ID.isValidUtf16();
}

void insertPatient(pugi::xml_node root, const PatientModel& patient, StepRecorder& recorder) {
    const pugi::xml_node made = insertElement<PatientModel>(root, lastElement(root, "Patient"));
    recorder.added(made);
    patient.updateXMLNode(made, true);
    recorder.setName(StepKind::addPatient, made, patient.ID);
}

bool hasPatient(pugi::xml_node root, const QString& ID) {
    return static_cast<bool>(findElement(root, "Patient", "ID", ID));
}

/// Of several patients without an ID, the one that reads as it was read.
pugi::xml_node findPatientWithoutID(pugi::xml_node root, const PatientModel& asRead) {
    return root.find_child([&asRead](pugi::xml_node node) {
        return isElement(node, "Patient") && PatientModel::initWithXMLNode(node) == asRead;
    });
}

/// For the patient and with numbers of their own.
void number(ReadingList& readings, const QString& ID, QString next) {
    for (ReadingModel& reading : readings) {
        qCInfo(lcStore, "add new reading......");
        reading.ID = ID;
        reading.RecID = next;
        next = IncreaseID(next);
    }
}

void saveXMLDataTransfer(pugi::xml_node root, const DataTransferLogModel& log, const ReadingList& readings) {
    log.updateXMLNode(insertElement<DataTransferLogModel>(root, lastElement(root, "DataTransferLog")));
    pugi::xml_node last = placeForReadings(root, log.ID);
    for (const ReadingModel& reading : readings) {
        last = insertElement<ReadingModel>(root, last);
        reading.updateXMLNode(last);
    }
}

} // namespace

/// After a failed load, what is in memory is not what the file holds, which may have been repaired by now.
StoreResult DataStore::edit(const DataFile::Change& change) {
    if (!loaded) {
        loaded = readRecords();
        if (loaded) emit reloaded();
    }
    if (!loaded) {
        qCWarning(lcStore, "Could not write document out...");
        return loaded;
    }
    StoreResult kept;
    StoreResult written = write([&](pugi::xml_node root) {
        const Edit made = change(root);
        if (made == Edit::changed) kept = copies.keepDaily(); // in this turn: the file is still as it was
        return made;
    });
    if (!kept) tellNotBackedUp(kept.error()); // once others have their turn again
    return written;
}

/// What is written into the file as it was read is no change by others, also when nothing is read again.
StoreResult DataStore::write(const DataFile::Change& change) {
    bool isAsSeen = false;
    const auto made = [&](pugi::xml_node root) {
        isAsSeen = file.stamp() == lastSeen;
        return change(root);
    };
    return file.edit(made, [&] {
        if (isAsSeen) lastSeen = file.stamp();
    });
}

/// A change is not held up by a copy that fails.
void DataStore::tellNotBackedUp(const StoreError& error) {
    if (error.code == StoreErrorCode::notFlushed) return emit notBackedUp(describeExport(error));
    const QString why = error.detail.isEmpty() ? describe(error) : error.detail;
    qCWarning(lcStore, "No backup was made: %s", qUtf8Printable(why));
    emit notBackedUp(qtTrId("NotBackedUp").arg(copies.folder(), why));
}

StoreResult DataStore::editAndReload(const DataFile::Change& change) {
    StoreResult written = edit(change);
    if (isInPlace(written)) std::ignore = loadXML();
    return written;
}

StoreResult DataStore::editAsStep(const StepChange& change) {
    ChangeStep step;
    StoreResult written = edit([&](pugi::xml_node root) {
        StepRecorder recorder;
        const Edit made = change(root, recorder);
        if (made == Edit::changed) step = recorder.step();
        return made;
    });
    if (isInPlace(written) && history.add(std::move(step))) emit historyChanged();
    return written;
}

StoreResult DataStore::editAsStepAndReload(const StepChange& change) {
    StoreResult written = editAsStep(change);
    if (isInPlace(written)) std::ignore = loadXML();
    return written;
}

/// The steps were those of another document then.
tl::expected<QString, StoreError> DataStore::restoreBackup(const QString& name) {
    auto kept = copies.restore(name);
    if (!isInPlace(kept)) return kept;
    history.clear();
    emit historyChanged();
    std::ignore = loadXML();
    return kept;
}

StoreResult DataStore::saveXMLPatient(const PatientModel& patient,
                                      const std::optional<PatientModel>& asRead) {
    if (!canBeID(patient.ID)) return refused(patient.ID);
    bool isGone = false;
    // By value: the records that they may be of are read anew after a failed load.
    StoreResult saved = editAsStep([patient, asRead, &isGone](pugi::xml_node root, StepRecorder& recorder) {
        if (const auto known = findElement(root, "Patient", "ID", patient.ID)) {
            recorder.willChange(known);
            patient.updateXMLNode(known, false, asRead ? &*asRead : nullptr);
            recorder.setName(StepKind::editPatient, known, patient.ID);
            return Edit::changed;
        }
        isGone = asRead.has_value();
        if (!isGone) insertPatient(root, patient, recorder);
        return isGone ? Edit::unchanged : Edit::changed;
    });
    if (!isGone) return saved;
    saved = noSuch(patient.ID);
    std::ignore = loadXML();
    return saved;
}

StoreResult DataStore::addXMLPatient(const PatientModel& patient) {
    if (!canBeID(patient.ID)) return refused(patient.ID);
    bool isKnown = false;
    StoreResult added = editAsStep([&](pugi::xml_node root, StepRecorder& recorder) {
        isKnown = hasPatient(root, patient.ID);
        if (!isKnown) insertPatient(root, patient, recorder);
        return isKnown ? Edit::unchanged : Edit::changed;
    });
    if (isKnown) return tl::unexpected{StoreError{StoreErrorCode::alreadyKnown, patient.ID, {}}};
    return added;
}

StoreResult DataStore::deleteXMLPatient(const QString& ID) {
    if (IsEmptyID(ID)) return deleteWithoutID(ID);
    return editAsStep([&ID](pugi::xml_node root, StepRecorder& recorder) {
        const pugi::xml_node known = findElement(root, "Patient", "ID", ID);
        recorder.setName(StepKind::deletePatient, known, ID);
        recorder.willRemove(known);
        if (!root.remove_child(known)) {
            qCDebug(lcStore, "delete node ID:%s error, no node found = ", qUtf8Printable(ID));
        }
        if (removeElementsOf(root, "Comment", ID, recorder) == 0) {
            qCDebug(lcStore, "no comment to be deleted for ID: %s", qUtf8Printable(ID));
        }
        if (removeElementsOf(root, "MeasureRec", ID, recorder) == 0) {
            qCDebug(lcStore, "no measure to be deleted for ID: %s", qUtf8Printable(ID));
        }
        return Edit::changed;
    });
}

/// Readings and comments without an ID are nobody's, and stay.
StoreResult DataStore::deleteWithoutID(const QString& ID) {
    const PatientModel* known = getPatientByID(ID);
    if (!known) return refused(ID);
    return editAsStep([asRead = *known](pugi::xml_node root, StepRecorder& recorder) {
        const pugi::xml_node found = findPatientWithoutID(root, asRead);
        recorder.setName(StepKind::deletePatient, found, asRead.ID);
        recorder.willRemove(found);
        return root.remove_child(found) ? Edit::changed : Edit::unchanged;
    });
}

StoreResult DataStore::saveSetting() {
    const auto saved = changeSetting(settingAsRead, records.gSettingModel, WithoutPlace::leaveOut);
    return saved.map([this](const SettingModel& kept) { settingAsRead = records.gSettingModel = kept; });
}

tl::expected<SettingModel, StoreError>
DataStore::changeSetting(const SettingModel& shown, const SettingModel& wanted, WithoutPlace withoutPlace) {
    SettingModel kept;
    // By value: they may be the settings that are read anew after a failed load.
    const auto write = [&kept, withoutPlace, shown, wanted](pugi::xml_node root, StepRecorder& recorder) {
        pugi::xml_node element = firstElement(root, "SystemSetting");
        if (element)
            recorder.willChange(element);
        else
            recorder.added(element = SettingModel::makeXmlNode(root));
        recorder.setName({.kind = StepKind::changeSettings, .subject = {}, .patientID = {}, .commentID = {}});
        SettingModel meant = SettingModel::initWithXMLNode(element);
        meant.takeChanges(shown, wanted);
        wanted.updateXMLNode(element, &shown);
        kept = SettingModel::initWithXMLNode(element);
        const bool isWhole = kept == meant;
        return isWhole || withoutPlace == WithoutPlace::leaveOut ? Edit::changed : Edit::unchanged;
    };
    return editAsStep(write).map([&kept] { return kept; });
}

tl::expected<TransferCounts, StoreError> DataStore::newDataTransfer(const QString& ID,
                                                                    ReadingList downloaded) {
    if (IsEmptyID(ID)) return refused(ID);
    TransferCounts counts;
    bool isKnown = false;
    // Compared and numbered against the file as it is at the write: another program may have stored something
    // since it was read, or removed the patient.
    StoreResult stored = editAndReload([&](pugi::xml_node root) {
        isKnown = hasPatient(root, ID);
        if (!isKnown) return Edit::unchanged;
        const Records current = Records::read(root, LocalZone{});
        ReadingList added = newReadings(root, ID, std::move(downloaded));
        counts.added = added.size();
        if (added.empty()) return Edit::unchanged;
        const auto typed = typedMeanwhileMeasured(root, ID, added);
        std::ranges::for_each(typed, leaveOutAsMeasured); // so that nothing that was measured counts twice
        counts.leftOut = typed.size();
        number(added, ID, current.getMaxID(Counter::reading));
        saveXMLDataTransfer(root, newDataLog(current, ID, counts.added), added);
        return Edit::changed;
    });
    if (!stored) return tl::unexpected{stored.error()};
    if (!isKnown) return noSuch(ID);
    if (counts.added > 0) {
        qCInfo(lcStore, "add new reading......1");
        qCInfo(lcStore, "add new reading......2");
    }
    return counts;
}

DataTransferLogModel DataStore::newDataLog(const Records& stored, const QString& ID,
                                           std::size_t count) const {
    DataTransferLogModel entry;
    entry.ID = ID;
    entry.RecID = stored.getMaxID(Counter::dataLog);
    entry.transferDate = std::chrono::floor<std::chrono::milliseconds>(clock.now());
    entry.transferDay = LocalZone{}.day(entry.transferDate);
    entry.numofRecord = static_cast<std::uint32_t>(count);
    return entry;
}

} // namespace zel

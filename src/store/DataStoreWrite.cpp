#include "store/DataStore.h"
#include "store/DocumentElements.h"
#include "store/Log.h"
#include "store/RecordXml.h"
#include "store/Text.h"

#include <algorithm>

namespace zel {

namespace {

using Edit = DataFile::Edit;

/// \return how many were removed
int removeElementsOf(pugi::xml_node root, const char* name, const QString& ID) {
    int removed = 0;
    for (pugi::xml_node at = root.first_child(); at;) {
        const pugi::xml_node next = at.next_sibling();
        if (isElement(at, name) && elementText(at.child("ID")) == ID && root.remove_child(at)) ++removed;
        at = next;
    }
    return removed;
}

tl::unexpected<StoreError> refused(const QString& ID) {
    return tl::unexpected{StoreError{StoreErrorCode::invalidRecord, ID, {}}};
}

/// An ID that the file cannot hold as it is would never be found again.
bool canBeID(const QString& ID) {
    return !IsEmptyID(ID) && std::ranges::none_of(ID, [](QChar c) { return c < u' ' || c.isNonCharacter(); })
           && ID.isValidUtf16();
}

void insertPatient(pugi::xml_node root, const PatientModel& patient) {
    const pugi::xml_node last = lastElement(root, "Patient");
    pugi::xml_node element = PatientModel::makeXmlNode(root);
    if (last) element = root.insert_move_after(element, last);
    patient.updateXMLNode(element, true);
}

void insertComment(pugi::xml_node root, const CommentModel& comment) {
    comment.updateXMLNode(insertElement<CommentModel>(root, lastElement(root, "Comment")));
}

/// After the patient's last reading, so that a patient's readings stay together; after all if it has none.
pugi::xml_node placeForReadings(pugi::xml_node root, const QString& ID) {
    const pugi::xml_node last = lastElement(root, "MeasureRec");
    for (pugi::xml_node at = last; at; at = at.previous_sibling()) {
        if (isElement(at, "MeasureRec") && elementText(at.child("ID")) == ID) return at;
    }
    return last;
}

/// Those that are not stored yet, for the patient and with numbers of their own. They are compared with the
/// stored ones only: two equal readings of one download are both kept.
ReadingList newReadings(const Records& stored, const QString& ID, ReadingList downloaded) {
    const ReadingList& known = stored.readingsOf(ID);
    std::erase_if(downloaded, [&known](const ReadingModel& reading) {
        return std::ranges::any_of(known, [&](const ReadingModel& old) { return old.isSame(reading); });
    });
    QString next = stored.getMaxID(Records::Counter::reading);
    for (ReadingModel& reading : downloaded) {
        qCInfo(lcStore, "add new reading......");
        reading.ID = ID;
        reading.RecID = next;
        next = IncreaseID(next);
    }
    return downloaded;
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

StoreResult DataStore::editAndReload(const DataFile::Change& change) {
    if (StoreResult written = file.edit(change); !written) return written;
    return loadXML();
}

StoreResult DataStore::saveXMLPatient(const PatientModel& patient) {
    if (!canBeID(patient.ID)) return refused(patient.ID);
    return file.edit([&patient](pugi::xml_node root) {
        if (const auto known = findElement(root, "Patient", "ID", patient.ID)) {
            patient.updateXMLNode(known, false);
            return Edit::changed;
        }
        insertPatient(root, patient);
        return Edit::changed;
    });
}

StoreResult DataStore::addXMLPatient(const PatientModel& patient) {
    if (!canBeID(patient.ID)) return refused(patient.ID);
    bool isKnown = false;
    StoreResult added = file.edit([&](pugi::xml_node root) {
        isKnown = static_cast<bool>(findElement(root, "Patient", "ID", patient.ID));
        if (!isKnown) insertPatient(root, patient);
        return isKnown ? Edit::unchanged : Edit::changed;
    });
    if (isKnown) return tl::unexpected{StoreError{StoreErrorCode::alreadyKnown, patient.ID, {}}};
    return added;
}

StoreResult DataStore::deleteXMLPatient(const QString& ID) {
    if (IsEmptyID(ID)) return refused(ID);
    return file.edit([&ID](pugi::xml_node root) {
        if (!root.remove_child(findElement(root, "Patient", "ID", ID))) {
            qCDebug(lcStore, "delete node ID:%s error, no node found = ", qUtf8Printable(ID));
        }
        if (removeElementsOf(root, "Comment", ID) == 0) {
            qCDebug(lcStore, "no comment to be deleted for ID: %s", qUtf8Printable(ID));
        }
        if (removeElementsOf(root, "MeasureRec", ID) == 0) {
            qCDebug(lcStore, "no measure to be deleted for ID: %s", qUtf8Printable(ID));
        }
        return Edit::changed;
    });
}

StoreResult DataStore::saveSetting() {
    return file.edit([this](pugi::xml_node root) {
        pugi::xml_node element = firstElement(root, "SystemSetting");
        if (!element) element = SettingModel::makeXmlNode(root);
        records.gSettingModel.updateXMLNode(element);
        return Edit::changed;
    });
}

tl::expected<std::size_t, StoreError> DataStore::newDataTransfer(ReadingList downloaded) {
    if (IsEmptyID(currentID)) return refused(currentID);
    std::size_t count = 0;
    // Compared and numbered against the file as it is at the write: another program may have stored something
    // since it was read.
    StoreResult stored = editAndReload([&](pugi::xml_node root) {
        const Records current = Records::read(root, LocalZone{});
        const ReadingList added = newReadings(current, currentID, std::move(downloaded));
        count = added.size();
        if (added.empty()) return Edit::unchanged;
        saveXMLDataTransfer(root, newDataLog(current, count), added);
        return Edit::changed;
    });
    if (!stored) return tl::unexpected{stored.error()};
    if (count > 0) {
        qCInfo(lcStore, "add new reading......1");
        qCInfo(lcStore, "add new reading......2");
    }
    return count;
}

DataTransferLogModel DataStore::newDataLog(const Records& stored, std::size_t count) const {
    DataTransferLogModel entry;
    entry.ID = currentID;
    entry.RecID = stored.getMaxID(Counter::dataLog);
    entry.transferDate = std::chrono::floor<std::chrono::milliseconds>(clock.now());
    entry.transferDay = LocalZone{}.day(entry.transferDate);
    entry.numofRecord = static_cast<std::uint32_t>(count);
    return entry;
}

tl::expected<QString, StoreError> DataStore::addCommentForCurID(CommentModel comment) {
    if (IsEmptyID(currentID)) return refused(currentID);
    comment.ID = currentID;
    if (comment.CommentID.isEmpty()) comment.CommentID = getMaxID(Records::Counter::comment);
    // Another program may have used the number since the file was read.
    const StoreResult added = editAndReload([&comment](pugi::xml_node root) {
        while (findElement(root, "Comment", "CommentID", comment.CommentID))
            comment.CommentID = IncreaseID(comment.CommentID);
        insertComment(root, comment);
        return Edit::changed;
    });
    return added.map([&comment] { return comment.CommentID; });
}

StoreResult DataStore::saveCommentToXML(const CommentModel& comment) {
    return editAndReload([&comment](pugi::xml_node root) {
        if (const auto known = findElement(root, "Comment", "CommentID", comment.CommentID)) {
            comment.updateXMLNode(known);
        } else {
            qCDebug(lcStore, "nodesForXPath failed %s", qUtf8Printable(comment.CommentID));
            insertComment(root, comment);
        }
        return Edit::changed;
    });
}

StoreResult DataStore::deleteSelectedCommentToXML() {
    const CommentModel* selected = getSelectedComment();
    if (!selected) return {};
    return editAndReload([ID = selected->CommentID](pugi::xml_node root) {
        root.remove_child(findElement(root, "Comment", "CommentID", ID));
        return Edit::changed;
    });
}

} // namespace zel

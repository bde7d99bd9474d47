#include "store/DataStore.h"
#include "store/Log.h"
#include "store/RecordInsertion.h"
#include "store/RecordXml.h"
#include "store/Text.h"

#include <algorithm>

namespace zel {

namespace {

template <class Element>
bool hasText(Element element, const char* child, const QString& text) {
    return elementText(element.child(child)) == text;
}

pugi::xml_node findElement(pugi::xml_node root, const char* name, const char* child, const QString& text) {
    for (const pugi::xml_node element : root.children(name)) {
        if (hasText(element, child, text)) return element;
    }
    return {};
}

/// \return how many were removed
int removeElementsOf(pugi::xml_node root, const char* name, const QString& ID) {
    int removed = 0;
    for (pugi::xml_node at = root.child(name); at;) {
        const pugi::xml_node next = at.next_sibling(name);
        if (hasText(at, "ID", ID) && root.remove_child(at)) ++removed;
        at = next;
    }
    return removed;
}

tl::unexpected<StoreError> refused(StoreErrorCode code, const QString& ID) {
    return tl::unexpected{StoreError{code, ID, {}}};
}

void insertComment(pugi::xml_node root, const CommentModel& comment) {
    comment.updateXMLNode(insertElement<CommentModel>(root, lastElement(root, "Comment")));
}

/// After the patient's last reading, so that a patient's readings stay together; after all if it has none.
pugi::xml_node placeForReadings(pugi::xml_node root, const QString& ID) {
    const pugi::xml_node last = lastElement(root, "MeasureRec");
    for (pugi::xml_node at = last; at; at = at.previous_sibling("MeasureRec")) {
        if (hasText(at, "ID", ID)) return at;
    }
    return last;
}

} // namespace

StoreResult DataStore::editAndReload(const DataFile::Change& change) {
    if (StoreResult written = file.edit(change); !written) return written;
    return loadXML();
}

StoreResult DataStore::saveXMLPatient(const PatientModel& patient) {
    if (IsEmptyID(patient.ID)) return refused(StoreErrorCode::invalidRecord, patient.ID);
    return file.edit([&patient](pugi::xml_node root) -> StoreResult {
        if (const auto known = findElement(root, "Patient", "ID", patient.ID)) {
            patient.updateXMLNode(known, false);
            return {};
        }
        const pugi::xml_node last = lastElement(root, "Patient");
        pugi::xml_node element = PatientModel::makeXmlNode(root);
        if (last) element = root.insert_move_after(element, last);
        patient.updateXMLNode(element, true);
        return {};
    });
}

StoreResult DataStore::deleteXMLPatient(const QString& ID) {
    return file.edit([&ID](pugi::xml_node root) -> StoreResult {
        if (!root.remove_child(findElement(root, "Patient", "ID", ID))) {
            qCDebug(lcStore, "delete node ID:%s error, no node found = ", qUtf8Printable(ID));
        }
        if (removeElementsOf(root, "Comment", ID) == 0) {
            qCDebug(lcStore, "no comment to be deleted for ID: %s", qUtf8Printable(ID));
        }
        if (removeElementsOf(root, "MeasureRec", ID) == 0) {
            qCDebug(lcStore, "no measure to be deleted for ID: %s", qUtf8Printable(ID));
        }
        return {};
    });
}

StoreResult DataStore::saveSetting() {
    return file.edit([this](pugi::xml_node root) -> StoreResult {
        pugi::xml_node element = root.child("SystemSetting");
        if (!element) element = SettingModel::makeXmlNode(root);
        records.gSettingModel.updateXMLNode(element);
        return {};
    });
}

tl::expected<std::size_t, StoreError> DataStore::newDataTransfer(ReadingList downloaded) {
    // Against the file as it is now: another program may have stored something since it was read.
    if (StoreResult current = readRecords(); !current) {
        emit reloaded();
        return tl::unexpected{current.error()};
    }
    const ReadingList added = newReadings(std::move(downloaded));
    if (!added.empty()) {
        if (StoreResult written = saveXMLDataTransfer(newDataLog(added.size()), added); !written) {
            emit reloaded();
            return tl::unexpected{written.error()};
        }
        qCInfo(lcStore, "add new reading......1");
        qCInfo(lcStore, "add new reading......2");
    }
    if (StoreResult reloading = loadXML(); !reloading) return tl::unexpected{reloading.error()};
    return added.size();
}

ReadingList DataStore::newReadings(ReadingList downloaded) const {
    const ReadingList& stored = getReadingForCurID();
    // Compared with the stored readings only: two equal records of one download are both kept.
    std::erase_if(downloaded, [&stored](const ReadingModel& reading) {
        return std::ranges::any_of(stored, [&](const ReadingModel& known) { return known.isSame(reading); });
    });
    QString next = getMaxID(Counter::reading);
    for (ReadingModel& reading : downloaded) {
        qCInfo(lcStore, "add new reading......");
        reading.ID = currentID;
        reading.RecID = next;
        next = IncreaseID(next);
    }
    return downloaded;
}

DataTransferLogModel DataStore::newDataLog(std::size_t count) const {
    DataTransferLogModel entry;
    entry.ID = currentID;
    entry.RecID = getMaxID(Counter::dataLog);
    entry.transferDate = std::chrono::floor<std::chrono::milliseconds>(clock.now());
    entry.transferDay = LocalZone{}.day(entry.transferDate);
    entry.numofRecord = static_cast<std::uint32_t>(count);
    return entry;
}

StoreResult DataStore::saveXMLDataTransfer(const DataTransferLogModel& log, const ReadingList& readings) {
    return file.edit([&log, &readings, this](pugi::xml_node root) -> StoreResult {
        log.updateXMLNode(insertElement<DataTransferLogModel>(root, lastElement(root, "DataTransferLog")));
        pugi::xml_node last = placeForReadings(root, currentID);
        for (const ReadingModel& reading : readings) {
            last = insertElement<ReadingModel>(root, last);
            reading.updateXMLNode(last);
        }
        return {};
    });
}

StoreResult DataStore::addCommentForCurID(CommentModel comment) {
    comment.ID = currentID;
    return addCommentToXML(comment);
}

StoreResult DataStore::addCommentToXML(const CommentModel& comment) {
    return editAndReload([&comment](pugi::xml_node root) -> StoreResult {
        insertComment(root, comment);
        return {};
    });
}

StoreResult DataStore::saveCommentToXML(const CommentModel& comment) {
    return editAndReload([&comment](pugi::xml_node root) -> StoreResult {
        if (const auto known = findElement(root, "Comment", "CommentID", comment.CommentID)) {
            comment.updateXMLNode(known);
        } else {
            qCDebug(lcStore, "nodesForXPath failed %s", qUtf8Printable(comment.CommentID));
            insertComment(root, comment);
        }
        return {};
    });
}

StoreResult DataStore::deleteSelectedCommentToXML() {
    const CommentModel* selected = getSelectedComment();
    if (!selected) return {};
    return editAndReload([ID = selected->CommentID](pugi::xml_node root) -> StoreResult {
        root.remove_child(findElement(root, "Comment", "CommentID", ID));
        return {};
    });
}

} // namespace zel

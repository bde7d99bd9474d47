#include "store/DataStore.h"
#include "store/DocumentElements.h"
#include "store/Log.h"
#include "store/RecordXml.h"
#include "store/Text.h"

namespace zel {

namespace {

using Edit = DataFile::Edit;

tl::unexpected<StoreError> noPatient(const QString& ID) {
    return tl::unexpected{StoreError{StoreErrorCode::noSuchRecord, ID, {}}};
}

bool isPatient(pugi::xml_node root, const QString& ID) {
    return static_cast<bool>(findElement(root, "Patient", "ID", ID));
}

void nameStep(StepRecorder& recorder, StepKind kind, pugi::xml_node root, const CommentModel& comment) {
    recorder.setName(kind, findElement(root, "Patient", "ID", comment.ID), comment.ID, comment.CommentID);
}

void insertComment(pugi::xml_node root, const CommentModel& comment, StepRecorder& recorder) {
    const pugi::xml_node made = insertElement<CommentModel>(root, lastElement(root, "Comment"));
    recorder.added(made);
    comment.updateXMLNode(made);
    nameStep(recorder, StepKind::addComment, root, comment);
}

bool isCommentOf(pugi::xml_node node, const CommentModel& asRead) {
    return isElement(node, "Comment") && childText(node, "CommentID") == asRead.numberInFile()
           && childText(node, "ID") == asRead.ID;
}

bool hasComment(pugi::xml_node root, const CommentModel& asRead) {
    return static_cast<bool>(root.find_child([&](pugi::xml_node node) { return isCommentOf(node, asRead); }));
}

/// By patient and number; of several such, the one that still reads as it was read, or none.
pugi::xml_node findComment(pugi::xml_node root, const CommentModel& asRead) {
    const LocalZone zone;
    pugi::xml_node found;
    bool isOnly = true;
    for (const pugi::xml_node node : root.children()) {
        if (!isCommentOf(node, asRead)) continue;
        if (CommentModel::initWithXMLNode(node, zone).isSame(asRead)) return node;
        isOnly = !found;
        found = node;
    }
    return isOnly ? found : pugi::xml_node{};
}

/// No other comment's, also of those without a patient.
QString freeCommentNumber(pugi::xml_node root, const QString& wanted) {
    if (!findElement(root, "Comment", "CommentID", wanted)) return wanted;
    constexpr auto kind = Records::Counter::comment;
    Records counters;
    for (const pugi::xml_node node : root.children()) {
        if (isElement(node, "Comment")) counters.countID(kind, childText(node, "CommentID"));
    }
    return counters.getMaxID(kind);
}

} // namespace

tl::expected<QString, StoreError> DataStore::addCommentForCurID(CommentModel comment) {
    if (IsEmptyID(currentID)) return tl::unexpected{StoreError{StoreErrorCode::invalidRecord, currentID, {}}};
    comment.ID = currentID;
    if (comment.CommentID.isEmpty()) comment.CommentID = getMaxID(Records::Counter::comment);
    bool isKnown = false;
    // Another program may have used the number since the file was read, or removed the patient.
    const StoreResult added = editAsStepAndReload([&](pugi::xml_node root, StepRecorder& recorder) {
        isKnown = isPatient(root, comment.ID);
        if (!isKnown) return Edit::unchanged;
        comment.CommentID = freeCommentNumber(root, comment.CommentID);
        insertComment(root, comment, recorder);
        return Edit::changed;
    });
    if (added && !isKnown) return noPatient(comment.ID);
    return added.map([&comment] { return comment.CommentID; });
}

StoreResult DataStore::saveCommentToXML(CommentModel comment, std::optional<CommentModel> asRead) {
    bool isKnown = true;
    const CommentModel sought = asRead.value_or(comment);
    if (comment.fileNumber) comment.CommentID = *comment.fileNumber; // what is only known here is not written
    if (asRead && asRead->fileNumber) asRead->CommentID = *asRead->fileNumber;
    StoreResult saved = editAsStepAndReload([&](pugi::xml_node root, StepRecorder& recorder) {
        if (const auto known = findComment(root, sought)) {
            recorder.willChange(known);
            nameStep(recorder, StepKind::editComment, root, sought);
            comment.updateXMLNode(known, asRead ? &*asRead : nullptr);
            return Edit::changed;
        }
        qCDebug(lcStore, "nodesForXPath failed %s", qUtf8Printable(comment.CommentID));
        isKnown = isPatient(root, comment.ID);
        if (!isKnown) return Edit::unchanged;
        comment.CommentID = freeCommentNumber(root, comment.CommentID);
        insertComment(root, comment, recorder);
        return Edit::changed;
    });
    if (saved && !isKnown) return noPatient(comment.ID);
    return saved;
}

StoreResult DataStore::deleteSelectedCommentToXML() {
    const CommentModel* selected = getSelectedComment();
    if (!selected) return {};
    bool isUnclear = false;
    StoreResult removed =
        editAsStepAndReload([&isUnclear, asRead = *selected](pugi::xml_node root, StepRecorder& recorder) {
            const auto known = findComment(root, asRead);
            nameStep(recorder, StepKind::deleteComment, root, asRead);
            recorder.willRemove(known);
            isUnclear = !known && hasComment(root, asRead);
            return root.remove_child(known) ? Edit::changed : Edit::unchanged; // gone already: as was wanted
        });
    if (removed && isUnclear) return tl::unexpected{StoreError{StoreErrorCode::changedElsewhere, {}, {}}};
    return removed;
}

} // namespace zel

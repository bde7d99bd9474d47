#include "store/DataStore.h"
#include "store/StepMerge.h"

namespace zel {

StoreResult DataStore::undo() { return retrace(true); }

StoreResult DataStore::redo() { return retrace(false); }

/// A refusal shows what the file has become, which the step does not fit any more; kept, it would stand
/// before all earlier ones for good.
StoreResult DataStore::retrace(bool back) {
    const ChangeStep* next = back ? history.undoable() : history.redoable();
    if (!next) return tl::unexpected{StoreError{StoreErrorCode::noStep, {}, {}}};
    ChangeStep step = back ? invert(*next) : *next;
    StoreResult applied;
    StoreResult written = edit([&](pugi::xml_node root) {
        applied = apply(root, step);
        return applied ? DataFile::Edit::changed : DataFile::Edit::unchanged;
    });
    if (!isInPlace(written)) return written;
    if (applied)
        back ? history.undone(invert(step)) : history.redone(std::move(step));
    else
        back ? history.dropUndoable() : history.dropRedoable();
    emit historyChanged();
    std::ignore = loadXML();
    return applied ? written : applied;
}

} // namespace zel

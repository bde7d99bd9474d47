#include "store/StepMerge.h"

#include "store/DocumentElements.h"
#include "store/ElementText.h"
#include "store/Text.h"

#include <QSet>

#include <string>
#include <unordered_map>
#include <vector>

namespace zel {

namespace {

tl::unexpected<StoreError> stepError(StoreErrorCode code, const QString& ID = {}) {
    return tl::unexpected{StoreError{code, ID, {}}};
}

bool isPatientElement(pugi::xml_node node) { return isElement(node, "Patient"); }

/// What belongs to a patient, by its ID.
bool isPatientsRecord(pugi::xml_node node) {
    return isElement(node, "Comment") || isElement(node, "MeasureRec");
}

/// Alike for an element before and after a change: its kind, its patient and its number.
std::string keyOf(pugi::xml_node node) {
    std::string scratch;
    std::string key{node.name()};
    if (node.type() != pugi::node_element) return key + '\n' + node.value();
    for (const char* child : {"ID", isElement(node, "Comment") ? "CommentID" : "RecID"}) {
        key += '\n';
        key += elementText(firstElement(node, child), scratch);
    }
    return key;
}

/// The children of the root, to be found without going through all of them each time.
class RootIndex {
public:
    using Nodes = std::vector<pugi::xml_node>;
    explicit RootIndex(pugi::xml_node root) {
        for (const pugi::xml_node node : root.children())
            add(node);
    }
    void add(pugi::xml_node node) { byKey[keyOf(node)].push_back(node); }
    void remove(pugi::xml_node node) { std::erase(byKey[keyOf(node)], node); }
    [[nodiscard]] const Nodes& alike(pugi::xml_node node) const {
        static const Nodes none;
        const auto found = byKey.find(keyOf(node));
        return found == byKey.end() ? none : found->second;
    }
    /// The last one alike that has just this content; null: there is none.
    [[nodiscard]] pugi::xml_node same(pugi::xml_node node) const {
        const QByteArray text = rawText(node);
        const Nodes& all = alike(node);
        const auto found = std::find_if(all.rbegin(), all.rend(),
                                        [&](pugi::xml_node each) { return rawText(each) == text; });
        return found == all.rend() ? pugi::xml_node{} : *found;
    }

private:
    std::unordered_map<std::string, Nodes> byKey;
};

/// Elements of one name, as the \p place-th of them.
pugi::xml_node childAt(pugi::xml_node parent, const std::string& name, int place) {
    for (const pugi::xml_node child : parent.children(name.c_str()))
        if (child.type() == pugi::node_element && place-- == 0) return child;
    return {};
}

int placeAmongLikes(pugi::xml_node child) {
    int place = 0;
    for (auto before = child.previous_sibling(child.name()); before;
         before = before.previous_sibling(child.name()))
        if (before.type() == pugi::node_element) ++place;
    return place;
}

/// Sets the children of one element in which two others differ.
class ChildMerge {
public:
    ChildMerge(pugi::xml_node into, pugi::xml_node from, pugi::xml_node to)
        : target{into}, before{from}, after{to} {
        for (const pugi::xml_node child : after.children())
            compare(child);
        for (const pugi::xml_node child : before.children())
            if (!childAt(after, child.name(), placeAmongLikes(child))) compare(child);
    }
    /// Nobody else has changed them meanwhile, or to the same.
    [[nodiscard]] bool isPossible() const { return isFree; }
    void perform() {
        for (const auto& [old, wanted] : changes)
            set(old, wanted);
    }

private:
    struct ChildChange {
        pugi::xml_node old, wanted;
    };
    void compare(pugi::xml_node child) {
        if (child.type() != pugi::node_element) return;
        const std::string name = child.name();
        const int place = placeAmongLikes(child);
        const pugi::xml_node wanted = childAt(after, name, place);
        const pugi::xml_node now = childAt(target, name, place);
        const QByteArray from = rawText(childAt(before, name, place));
        const QByteArray to = rawText(wanted);
        const QByteArray found = rawText(now);
        if (from == to || found == to) return;
        isFree = isFree && found == from;
        changes.push_back({now, wanted});
    }
    void set(pugi::xml_node old, pugi::xml_node wanted) {
        if (old && wanted) target.insert_copy_before(wanted, old);
        if (old) {
            target.remove_child(old);
            return;
        }
        const pugi::xml_node left = wanted.previous_sibling();
        const pugi::xml_node beside = left ? childAt(target, left.name(), placeAmongLikes(left)) : left;
        if (beside)
            target.insert_copy_after(wanted, beside);
        else
            target.prepend_copy(wanted);
    }

    pugi::xml_node target, before, after;
    std::vector<ChildChange> changes;
    bool isFree = true;
};

class StepMerge {
public:
    explicit StepMerge(pugi::xml_node documentRoot) : root{documentRoot}, index{documentRoot} {}

    [[nodiscard]] StoreResult make(const ChangeStep& step) {
        if (isThereAgain(step)) return stepError(StoreErrorCode::stepThere);
        for (const ElementChange& change : step.changes)
            if (StoreResult made = make(change); !made) return made;
        return belongsTogether();
    }

private:
    /// One comment that another program has put back, or the settings, which are written whenever there are
    /// none. A patient is known by the ID.
    [[nodiscard]] bool isThereAgain(const ChangeStep& step) const {
        if (step.changes.size() != 1 || !step.changes.front().before.isEmpty()) return false;
        const Fragment after{step.changes.front().after};
        const bool isSetting = isElement(after.node(), "SystemSetting");
        return isSetting ? static_cast<bool>(firstElement(root, "SystemSetting"))
                         : isElement(after.node(), "Comment") && index.same(after.node());
    }

    [[nodiscard]] StoreResult make(const ElementChange& change) {
        if (change.before.isEmpty()) return add(change);
        const Fragment before{change.before};
        const pugi::xml_node same = index.same(before.node());
        if (change.after.isEmpty()) return remove(same, before.node());
        const RootIndex::Nodes& alike = index.alike(before.node());
        if (alike.empty()) return stepError(StoreErrorCode::stepGone);
        if (!same && alike.size() > 1) return stepError(StoreErrorCode::stepChanged);
        const Fragment after{change.after};
        ChildMerge merge{same ? same : alike.front(), before.node(), after.node()};
        if (!merge.isPossible()) return stepError(StoreErrorCode::stepChanged);
        merge.perform();
        return {};
    }

    [[nodiscard]] StoreResult add(const ElementChange& change) {
        const Fragment after{change.after};
        const QString ID = childText(after.node(), "ID");
        if (isPatientElement(after.node())) {
            hasPatients = true;
            if (!IsEmptyID(ID) && findElement(root, "Patient", "ID", ID))
                return stepError(StoreErrorCode::stepPatientKnown, ID);
        } else if (isPatientsRecord(after.node())) {
            owners.insert(ID);
        }
        const pugi::xml_node place = placeFor(change.previous, after.node());
        index.add(place ? root.insert_copy_after(after.node(), place) : root.prepend_copy(after.node()));
        return {};
    }

    [[nodiscard]] StoreResult remove(pugi::xml_node found, pugi::xml_node sought) {
        if (!found)
            return stepError(index.alike(sought).empty() ? StoreErrorCode::stepGone
                                                         : StoreErrorCode::stepChanged);
        if (isPatientElement(found)) {
            hasPatients = true;
            removed.insert(childText(found, "ID"));
        }
        index.remove(found);
        root.remove_child(found);
        lastPlace = {};
        return {};
    }

    /// Behind the node that it stood behind, or the one that this has become; where it has gone, behind the
    /// last of its kind. Null: before all. Those that stood behind the same one get the same place.
    [[nodiscard]] pugi::xml_node placeFor(const QByteArray& previous, pugi::xml_node element) {
        if (previous.isEmpty()) return {};
        if (lastPlace && lastPrevious == previous && lastKind == element.name()) return lastPlace;
        const Fragment left{previous};
        pugi::xml_node place = index.same(left.node());
        if (const auto& alike = index.alike(left.node()); !place && !alike.empty()) place = alike.back();
        if (!place) place = lastElement(root, element.name());
        if (!place) place = root.last_child();
        lastPrevious = previous;
        lastKind = element.name();
        return lastPlace = place;
    }

    /// No reading and no comment is left, or comes back, without its patient.
    [[nodiscard]] StoreResult belongsTogether() const {
        QSet<QString> patients;
        for (const pugi::xml_node node : root.children("Patient"))
            patients.insert(childText(node, "ID"));
        if (!hasPatients) {
            for (const QString& ID : owners)
                if (!patients.contains(ID)) return stepError(StoreErrorCode::stepPatientGone, ID);
        }
        if (removed.empty()) return {};
        for (const pugi::xml_node node : root.children()) {
            if (!isPatientsRecord(node)) continue;
            const QString ID = childText(node, "ID");
            if (!IsEmptyID(ID) && removed.contains(ID) && !patients.contains(ID))
                return stepError(StoreErrorCode::stepHasRecords, ID);
        }
        return {};
    }

    pugi::xml_node root;
    RootIndex index;
    QByteArray lastPrevious;
    std::string lastKind;
    pugi::xml_node lastPlace;
    bool hasPatients = false; ///< patients come or go
    QSet<QString> owners;     ///< whose records come
    QSet<QString> removed;    ///< patients
};

} // namespace

StoreResult apply(pugi::xml_node root, const ChangeStep& step) { return StepMerge{root}.make(step); }

} // namespace zel

#include "store/StepMerge.h"

#include "store/DocumentElements.h"
#include "store/ElementMerge.h"
#include "store/ElementText.h"
#include "store/ReadingsBefore.h"
#include "store/RootIndex.h"
#include "store/Text.h"

#include <QSet>

#include <algorithm>
#include <optional>
#include <string>

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

/// Not looked at in full: there may be very many.
bool mayBringTyped(const ElementChange& change) {
    return change.after.startsWith("<MeasureRec") && change.after.contains("manual");
}

/// The same of one that counted, and is left out or taken away.
bool mayEndCounting(const ElementChange& change) {
    return change.before.startsWith("<MeasureRec")
           && (change.after.isEmpty() || change.after.contains("<Excluded"));
}

class StepMerge {
public:
    explicit StepMerge(pugi::xml_node documentRoot) : root{documentRoot}, index{documentRoot} {}

    [[nodiscard]] StoreResult make(ChangeStep& step) {
        if (isThereAgain(step)) return stepError(StoreErrorCode::stepThere);
        if (std::ranges::any_of(step.changes, mayBringTyped)) readBefore(step);
        for (ElementChange& change : step.changes)
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

    /// What the step itself leaves out or takes away stands in the way of nothing that it brings.
    void readBefore(const ChangeStep& step) {
        atFirst.emplace(root);
        for (const ElementChange& change : step.changes) {
            if (!mayEndCounting(change)) continue;
            const Fragment before{change.before};
            const RootIndex::Nodes& alike = index.alike(before.node());
            if (alike.empty()) continue;
            const pugi::xml_node same = index.same(before.node());
            const auto ends = ReadingModel::initWithXMLNode(same ? same : alike.front());
            if (!ends.isExcluded()) atFirst->removeCounting(ends);
        }
    }

    [[nodiscard]] StoreResult make(ElementChange& change) {
        if (change.before.isEmpty()) return add(change);
        const Fragment before{change.before};
        const pugi::xml_node same = index.same(before.node());
        if (change.after.isEmpty()) return remove(same, before.node());
        const RootIndex::Nodes& alike = index.alike(before.node());
        if (alike.empty()) return stepError(StoreErrorCode::stepGone);
        if (!same && alike.size() > 1) return stepError(StoreErrorCode::stepChanged);
        const Fragment after{change.after};
        const pugi::xml_node target = same ? same : alike.front();
        const auto asItWas = ReadingModel::initWithXMLNode(target);
        if (!mergeChildren(target, before.node(), after.node()))
            return stepError(StoreErrorCode::stepChanged);
        return wouldCountTwice(target, &asItWas) ? stepError(StoreErrorCode::stepThere) : StoreResult{};
    }

    /// A typed reading that comes back, or is changed from \p asItWas, beside one that a download has
    /// brought.
    [[nodiscard]] bool wouldCountTwice(pugi::xml_node element, const ReadingModel* asItWas) {
        if (!isElement(element, "MeasureRec")) return false;
        const auto reading = ReadingModel::initWithXMLNode(element);
        if (!reading.isManual || reading.isExcluded()) return false;
        const bool isAsItWas =
            asItWas && asItWas->isSame(reading) && asItWas->isExcluded() == reading.isExcluded();
        return !isAsItWas && atFirst && atFirst->hasCounting(reading);
    }

    /// A typed reading whose number a download has taken gets another one, in the step, too.
    void renumber(pugi::xml_node element, ElementChange& change) {
        if (!isElement(element, "MeasureRec")) return;
        const auto reading = ReadingModel::initWithXMLNode(element);
        if (!reading.isManual || !atFirst || !atFirst->hasNumber(reading)) return;
        setElementText(firstElement(element, "RecID"), freeReadingNumber(root));
        change.after = rawText(element);
    }

    [[nodiscard]] StoreResult add(ElementChange& change) {
        const Fragment after{change.after};
        if (wouldCountTwice(after.node(), nullptr)) return stepError(StoreErrorCode::stepThere);
        renumber(after.node(), change);
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
    std::optional<ReadingsBefore> atFirst; ///< where the step brings a typed reading
    QByteArray lastPrevious;
    std::string lastKind;
    pugi::xml_node lastPlace;
    bool hasPatients = false; ///< patients come or go
    QSet<QString> owners;     ///< whose records come
    QSet<QString> removed;    ///< patients
};

} // namespace

StoreResult apply(pugi::xml_node root, ChangeStep& step) { return StepMerge{root}.make(step); }

} // namespace zel

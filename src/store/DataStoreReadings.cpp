// Readings that are left out, and those that are typed in.

#include "store/DataStore.h"
#include "store/DocumentElements.h"
#include "store/ManualReading.h"
#include "store/NewReadings.h"
#include "store/ReadingsBefore.h"
#include "store/RecordXml.h"
#include "store/Text.h"

#include <QHash>

#include <algorithm>
#include <functional>
#include <iterator>
#include <tuple>

namespace zel {

namespace {

using Edit = DataFile::Edit;

tl::unexpected<StoreError> readingError(StoreErrorCode code, const QString& ID, const QString& detail = {}) {
    return tl::unexpected{StoreError{code, ID, detail}};
}

bool isReadingOf(pugi::xml_node node, const QString& ID) {
    return isElement(node, "MeasureRec") && childText(node, "ID") == ID;
}

bool isAsRead(pugi::xml_node element, const ReadingModel& asRead) {
    const auto now = ReadingModel::initWithXMLNode(element);
    return now.isSame(asRead) && now.isManual == asRead.isManual && now.exclusion == asRead.exclusion
           && now.isExcluded() == asRead.isExcluded();
}

/// One patient's readings in the document, to be found by number and content, each once: two of them may be
/// equal in both.
class ReadingElements {
public:
    ReadingElements(pugi::xml_node root, const QString& ID) {
        for (const pugi::xml_node node : root.children())
            if (isReadingOf(node, ID)) byNumber[childText(node, "RecID")].push_back(node);
    }
    [[nodiscard]] tl::expected<pugi::xml_node, StoreError> take(const ReadingModel& asRead) {
        const auto alike = byNumber.find(asRead.RecID);
        if (alike == byNumber.end()) return readingError(StoreErrorCode::readingGone, asRead.ID);
        const auto found =
            std::ranges::find_if(*alike, [&](pugi::xml_node node) { return isAsRead(node, asRead); });
        if (found == alike->end()) return readingError(StoreErrorCode::changedElsewhere, asRead.ID);
        const pugi::xml_node element = *found;
        alike->erase(found);
        return element;
    }

private:
    QHash<QString, std::vector<pugi::xml_node>> byNumber;
};

void nameReadingStep(StepRecorder& recorder, StepKind kind, pugi::xml_node root, const QString& ID,
                     std::size_t count) {
    recorder.setName(kind, findElement(root, "Patient", "ID", ID), ID);
    recorder.setCount(count);
}

/// All of them as they were read, or the first error. They are one patient's.
tl::expected<std::vector<pugi::xml_node>, StoreError> elementsOf(pugi::xml_node root,
                                                                 const ReadingList& asRead) {
    std::vector<pugi::xml_node> elements;
    elements.reserve(asRead.size());
    ReadingElements stored{root, asRead.front().ID};
    for (const ReadingModel& reading : asRead) {
        const auto element = stored.take(reading);
        if (!element) return tl::unexpected{element.error()};
        elements.push_back(*element);
    }
    return elements;
}

bool isDownloaded(const ReadingModel& reading) { return !reading.isManual; }

/// Of the same minute, with the same three values; for one that was measured that is also the minute that the
/// monitor's clock showed. \p besides is not looked at.
bool hasSameReading(pugi::xml_node root, const ReadingModel& wanted, pugi::xml_node besides) {
    const LocalZone zone;
    const auto key = [](const ReadingModel& reading, const Date& time) {
        return std::tuple{std::chrono::floor<std::chrono::minutes>(*time), reading.sys, reading.dia,
                          reading.pulse};
    };
    const auto instant = key(wanted, wanted.ReadingDate);
    const auto wall = key(wanted, wallClockOf(wanted, zone));
    return static_cast<bool>(root.find_child([&](pugi::xml_node node) {
        if (node == besides || !isReadingOf(node, wanted.ID)) return false;
        const auto other = ReadingModel::initWithXMLNode(node);
        if (!other.ReadingDate) return false;
        return key(other, other.ReadingDate) == instant
               || (isDownloaded(other) && key(other, wallClockOf(other, zone)) == wall);
    }));
}

/// Those that are to count again.
ReadingList measuredAgain(const ReadingList& takenIn) {
    ReadingList measured;
    std::ranges::copy_if(takenIn, std::back_inserter(measured), [](const ReadingModel& reading) {
        return isDownloaded(reading) && reading.isExcluded();
    });
    return measured;
}

/// As a download does. \p measured: one patient's \return how many
int leaveOutTyped(pugi::xml_node root, const ReadingList& measured, StepRecorder& recorder) {
    if (measured.empty()) return 0;
    const auto typed = typedMeanwhileMeasured(root, measured.front().ID, measured);
    for (const pugi::xml_node element : typed) {
        recorder.willChange(element);
        leaveOutAsMeasured(element);
    }
    return static_cast<int>(typed.size());
}

/// Which of the typed readings that are taken in again may count.
class CountingAgain {
public:
    /// \p takenIn: all of them; those that were measured come before any typed one
    CountingAgain(pugi::xml_node root, const ReadingList& takenIn, Instant present)
        : counting{root}, now{present} {
        for (const ReadingModel& reading : takenIn)
            if (isDownloaded(reading)) counting.addCounting(reading);
    }
    /// It stays left out, and is added to \p still.
    bool stays(const ReadingModel& reading, StillLeftOut& still) {
        if (isDownloaded(reading) || !reading.isExcluded()) return false;
        const auto problem = manualProblem(ManualReading::of(reading), now);
        if (problem) ++still.refused[*problem];
        const bool isTwin = !problem && counting.hasCounting(reading);
        if (isTwin) ++still.countTwice;
        if (!problem && !isTwin) counting.addCounting(reading);
        return problem || isTwin;
    }

private:
    ReadingsBefore counting;
    Instant now;
};

} // namespace

/// The change of readings that are found as they were read; \p change makes one of them, \p follow what
/// follows for others, which the step's name does not count.
template <class Change>
StoreResult DataStore::changeReadings(StepKind kind, const ReadingList& asRead, const Change& change,
                                      const std::function<void(pugi::xml_node, StepRecorder&)>& follow) {
    if (asRead.empty()) return {};
    StoreResult found;
    // By value: they may be of the records that are read anew after a failed load.
    StoreResult changed = editAsStepAndReload([&, asRead](pugi::xml_node root, StepRecorder& recorder) {
        const auto elements = elementsOf(root, asRead);
        if (!elements) {
            found = tl::unexpected{elements.error()};
            return Edit::unchanged;
        }
        for (std::size_t i = 0; i < asRead.size() && found; ++i)
            found = change((*elements)[i], asRead[i], recorder);
        const std::size_t made = recorder.step().changes.size();
        nameReadingStep(recorder, kind, root, asRead.front().ID, made);
        if (found && made > 0 && follow) follow(root, recorder);
        return found && made > 0 ? Edit::changed : Edit::unchanged;
    });
    return changed && !found ? found : changed;
}

StoreResult DataStore::excludeReadings(const ReadingList& asRead, const QString& reason) {
    const QString kept = exclusionReason(reason);
    if (kept.isEmpty()) return readingError(StoreErrorCode::noReason, {});
    return changeReadings(
        StepKind::excludeReadings, asRead,
        [&kept](pugi::xml_node element, const ReadingModel& before, StepRecorder& recorder) {
            ReadingModel excluded = before;
            excluded.exclusion = kept;
            recorder.willChange(element);
            excluded.changeXMLNode(element, before);
            return StoreResult{};
        });
}

tl::expected<TakenInAgain, StoreError> DataStore::includeReadings(const ReadingList& asRead) {
    TakenInAgain taken;
    std::optional<CountingAgain> counting; // reads all, which readings of a monitor have no need of
    const auto changed = changeReadings(
        StepKind::includeReadings, asRead,
        [&, asRead](pugi::xml_node element, const ReadingModel& before, StepRecorder& recorder) {
            if (before.isManual && !counting)
                counting.emplace(element.parent(), asRead,
                                 std::chrono::floor<Instant::duration>(clock.now()));
            if (counting && counting->stays(before, taken.still)) return StoreResult{};
            ReadingModel included = before;
            included.exclusion = QString{};
            recorder.willChange(element);
            included.changeXMLNode(element, before);
            return StoreResult{};
        },
        [&taken, measured = measuredAgain(asRead)](pugi::xml_node root, StepRecorder& recorder) {
            taken.leftOut = leaveOutTyped(root, measured, recorder);
        });
    return changed.map([&taken] { return taken; });
}

tl::expected<QString, StoreError> DataStore::addReading(const QString& ID, const ManualReading& typed) {
    if (const auto problem = manualProblem(typed, std::chrono::floor<Instant::duration>(clock.now())))
        return readingError(StoreErrorCode::readingRefused, ID, describe(*problem));
    ReadingModel reading;
    reading.ID = ID;
    reading = typed.writtenOver(std::move(reading));
    std::optional<StoreErrorCode> refusal;
    const StoreResult added = editAsStepAndReload([&](pugi::xml_node root, StepRecorder& recorder) {
        if (IsEmptyID(ID) || !findElement(root, "Patient", "ID", ID))
            refusal = StoreErrorCode::noSuchRecord;
        else if (hasSameReading(root, reading, {}))
            refusal = StoreErrorCode::readingKnown;
        if (refusal) return Edit::unchanged;
        reading.RecID = freeReadingNumber(root);
        const pugi::xml_node made = insertElement<ReadingModel>(root, placeForReadings(root, ID));
        recorder.added(made);
        reading.updateXMLNode(made);
        reading.changeXMLNode(made, {});
        nameReadingStep(recorder, StepKind::addReading, root, ID, 1);
        return Edit::changed;
    });
    if (added && refusal) return readingError(*refusal, ID);
    return added.map([&reading] { return reading.RecID; });
}

StoreResult DataStore::changeReading(const ReadingModel& asRead, const ManualReading& typed) {
    if (isDownloaded(asRead)) return readingError(StoreErrorCode::notManual, asRead.ID);
    if (const auto problem = manualProblem(typed, std::chrono::floor<Instant::duration>(clock.now())))
        return readingError(StoreErrorCode::readingRefused, asRead.ID, describe(*problem));
    return changeReadings(
        StepKind::editReading, {asRead},
        [&typed](pugi::xml_node element, const ReadingModel& before, StepRecorder& recorder) -> StoreResult {
            ReadingModel changed = typed.writtenOver(before);
            // What the monitor measured, too, was another one.
            if (before.exclusion == measuredReason && !changed.isSame(before)) changed.exclusion = QString{};
            if (hasSameReading(element.parent(), changed, element))
                return readingError(StoreErrorCode::readingKnown, before.ID);
            recorder.willChange(element);
            changed.changeXMLNode(element, before);
            return {};
        });
}

StoreResult DataStore::deleteReadings(const ReadingList& asRead) {
    if (std::ranges::any_of(asRead, isDownloaded)) return readingError(StoreErrorCode::notManual, {});
    return changeReadings(StepKind::deleteReadings, asRead,
                          [](pugi::xml_node element, const ReadingModel&, StepRecorder& recorder) {
                              recorder.willRemove(element);
                              element.parent().remove_child(element);
                              return StoreResult{};
                          });
}

} // namespace zel

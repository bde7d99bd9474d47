#include "store/StepRecorder.h"

#include "store/ElementText.h"
#include "store/RecordXml.h"

#include <QStringList>

#include <algorithm>

namespace zel {

namespace {

/// As in the roster.
QString nameOfPatient(pugi::xml_node patient) {
    QStringList names{childText(patient, "FamilyName").simplified(),
                      childText(patient, "GivenNames").simplified()};
    names.removeAll(QString{});
    return names.join(QStringLiteral(", "));
}

} // namespace

void StepRecorder::setName(StepKind kind, pugi::xml_node patient, const QString& ID,
                           const QString& commentID) {
    const QString name = nameOfPatient(patient);
    setName({.kind = kind, .subject = name.isEmpty() ? ID : name, .patientID = ID, .commentID = commentID});
}

void StepRecorder::willChange(pugi::xml_node element) {
    made.changes.push_back({.before = rawText(element), .after = {}, .previous = {}});
    kept.push_back({.node = element, .previous = {}});
}

void StepRecorder::willRemove(pugi::xml_node element) {
    if (!element) return;
    QByteArray previous = rawText(element.previous_sibling());
    // Those that stood side by side share one text.
    if (!made.changes.empty() && made.changes.back().previous == previous)
        previous = made.changes.back().previous;
    made.changes.push_back({.before = rawText(element), .after = {}, .previous = previous});
    kept.push_back({});
}

void StepRecorder::added(pugi::xml_node element) {
    made.changes.push_back({});
    kept.push_back({.node = element, .previous = element.previous_sibling()});
}

ChangeStep StepRecorder::step() const {
    ChangeStep step = made;
    for (std::size_t i = 0; i < kept.size(); ++i) {
        step.changes[i].after = rawText(kept[i].node);
        if (!kept[i].previous) continue;
        const bool isBehindLast = i > 0 && kept[i].previous == kept[i - 1].node;
        step.changes[i].previous = isBehindLast ? step.changes[i - 1].after : rawText(kept[i].previous);
    }
    std::erase_if(step.changes, [](const ElementChange& change) { return change.before == change.after; });
    return step;
}

} // namespace zel

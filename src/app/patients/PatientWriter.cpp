#include "app/patients/PatientWriter.h"

#include "app/widgets/PatientTexts.h"
#include "store/Text.h"

#include <algorithm>

namespace zel {

bool PatientWriter::tell(const StoreResult& result) {
    if (!result) panel.ShowMessage(describe(result.error()), qtTrId("Warning"));
    return result.has_value();
}

/// Records of the same ID cannot be told apart in the file: a change might go to the wrong one.
bool PatientWriter::isUnique(const QString& ID) {
    if (IsEmptyID(ID) || std::ranges::count(store.getPatientArray(), ID, &PatientModel::ID) < 2) return true;
    panel.ShowMessage(qtTrId("patientIDTwice").arg(ID), qtTrId("Warning"));
    return false;
}

/// One message, for what stands first in the order of the checks; each field says the rest.
void PatientWriter::refuse(const std::vector<PatientProblem>& found) {
    const auto& first = *std::ranges::min_element(found, {}, &PatientProblem::kind);
    if (first.kind == PatientProblem::Kind::missing)
        return panel.ShowMessage(qtTrId("patientsInputFields"), qtTrId("Warning"));
    if (first.kind == PatientProblem::Kind::sameID)
        return panel.ShowMessage(first.text, qtTrId("sameIDTitle"));
    QStringList texts;
    for (const PatientProblem& problem : found)
        texts += problem.text;
    panel.ShowMessage(qtTrId("patientRefused").arg(texts.join(u'\n')), qtTrId("Warning"));
}

/// Nobody types a whole patient for a file that takes none. It may have been mended since it was read.
bool PatientWriter::canWrite() {
    const StoreResult read = store.lastLoad() ? StoreResult{} : store.loadXML();
    if (read) return store.checkXmlWritable(panel);
    panel.ShowMessage(describe(read.error()), qtTrId("dataFileUnreadable"));
    return false;
}

std::vector<PatientProblem> PatientWriter::problems(const PatientForm& form, const PatientEntry& entry,
                                                    Instant today) const {
    auto found = form.problems(entry, today);
    const QString ID = form.record(entry).ID;
    if (form.isNew() && !IsEmptyID(ID) && store.validIDinXML(ID))
        found.push_back({PatientField::ID, PatientProblem::Kind::sameID, qtTrId("sameID").arg(ID)});
    return found;
}

bool PatientWriter::isSavedQuietly(const PatientForm& form, const PatientEntry& entry, Instant today) {
    const PatientModel record = form.record(entry);
    const auto others = std::ranges::count(store.getPatientArray(), record.ID, &PatientModel::ID);
    if (others != (form.isNew() ? 0 : 1) || !form.problems(entry, today).empty()) return false;
    return (form.isNew() ? store.addXMLPatient(record) : store.saveXMLPatient(record, form.patient()))
        .has_value();
}

bool PatientWriter::write(const PatientModel& record, const PatientModel& shown) {
    const StoreResult written = store.saveXMLPatient(record, shown);
    const bool isGone = !written && written.error().code == StoreErrorCode::noSuchRecord;
    if (isGone && store.getCurrentID() == record.ID) return false; // the page has told what can be done
    return tell(written);
}

bool PatientWriter::add(const PatientModel& record) { return tell(store.addXMLPatient(record)); }

bool PatientWriter::remove(const PatientModel& patient) {
    return panel.AskToErase(qtTrId("ConfirmDelPatient").arg(knownName(patient)), qtTrId("DeletePatient"))
           && tell(store.deleteXMLPatient(patient.ID));
}

bool PatientWriter::dropNew(const PatientModel& patient) {
    return panel.AskToErase(qtTrId("confirmDropNew").arg(shortName(patient)), qtTrId("DeletePatient"));
}

void PatientWriter::loadAnew(const QString& ID) {
    store.setCurrentID(ID);
    if (const StoreResult loaded = store.loadXML(); !loaded)
        panel.ShowMessage(qtTrId("storedNotReadBack").arg(describe(loaded.error())), qtTrId("Warning"));
}

} // namespace zel

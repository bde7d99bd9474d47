#include "app/patients/OpenPatients.h"

#include "app/patients/PatientEditor.h"
#include "store/DataStore.h"

namespace zel {

using namespace Qt::StringLiterals;

bool OpenPatients::isNewOne(const QString& ID) const { return newPatient && ID == "-"_L1; }

bool OpenPatients::isGone(const QString& ID) const {
    const PatientForm& shown = editor.shownForm();
    return !shown.isNew() && shown.patient().ID == ID && !store.validIDinXML(ID) && editor.isChanged();
}

bool OpenPatients::isThere(const QString& ID) const {
    return isNewOne(ID) || store.validIDinXML(ID) || isGone(ID);
}

bool OpenPatients::isShownGone() const {
    const PatientForm& shown = editor.shownForm();
    const QString ID = store.getCurrentID();
    return store.lastLoad() && !shown.isNew() && shown.patient().ID == ID && !isThere(ID);
}

bool OpenPatients::isEdited() const { return isThere(store.getCurrentID()) && editor.isChanged(); }

PatientForm OpenPatients::formOf(const QString& ID) const {
    const PatientModel* patient = isGone(ID)     ? &editor.shownForm().patient()
                                  : isNewOne(ID) ? nullptr
                                                 : store.getPatientByID(ID);
    return {patient ? *patient : PatientForm::newPatient(), store.getSetting(), !patient};
}

bool OpenPatients::isNewOneBegun() const {
    return isNewOne(store.getCurrentID()) ? editor.isChanged() : isNewOneKept();
}

bool OpenPatients::isNewOneKept() const {
    return newPatient && newPatient->form.isChanged(newPatient->entry, today());
}

void OpenPatients::keepNewOne() { newPatient = {editor.shownForm(), editor.entry()}; }

Instant OpenPatients::today() const { return std::chrono::floor<std::chrono::milliseconds>(clock.now()); }

} // namespace zel

#include "app/patients/PatientViewController.h"

#include "app/device/PatientIDSender.h"
#include "app/patients/FirstSteps.h"
#include "app/patients/PatientButtons.h"
#include "app/patients/PatientDraft.h"
#include "app/patients/PatientEditor.h"
#include "app/patients/PatientRoster.h"
#include "app/widgets/EmptyState.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/PatientTexts.h"
#include "app/widgets/Style.h"
#include "store/Text.h"

#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

PatientViewController::PatientViewController(const Parts& needed)
    : parts(needed), store(needed.store), writer(needed.store, needed.panel),
      sender(new PatientIDSender({needed.status, needed.monitor, needed.store, needed.panel}, this)),
      roster(new PatientRoster(needed.store, this)), editor(new PatientEditor(needed.clock, this)),
      noPatients(new EmptyState(u"noPatients"_s, u":/icons/patientBtn.InactiveImg.svg"_s, this)),
      firstSteps(new FirstSteps(needed.status, needed.offersDemonstration, this)),
      rosterOrAdvice(new QStackedWidget(this)) {
    setObjectName(u"PatientViewController"_s);
    setAccessibleName(qtTrId("pagePatients"));
    build();
    connect(&store, &DataStore::reloaded, this, &PatientViewController::reload);
    connect(&parts.status, &MonitorStatus::changed, this, &PatientViewController::enableButtons);
    connect(firstSteps, &FirstSteps::newWanted, this, &PatientViewController::btnNewPatient);
    connect(firstSteps, &FirstSteps::demonstrationWanted, this, &PatientViewController::demonstrationWanted);
    connect(firstSteps, &FirstSteps::backupsWanted, this, &PatientViewController::backupsWanted);
    connect(editor, &PatientEditor::changed, this, [this] { buttons->enableSave(isEdited()); });
    connect(sender, &PatientIDSender::sent, this, &PatientViewController::updateUIWanted);
    // A question is asked when the click or key that chose the patient is over, not in its midst.
    connect(roster, &PatientRoster::wanted, this, [this] {
        const auto go = [this] { goTo(roster->selectedID()); };
        if (editor->isChanged())
            QMetaObject::invokeMethod(this, go, Qt::QueuedConnection);
        else
            go();
    });
    reload();
}

void PatientViewController::build() {
    auto* sides = new QSplitter(this);
    sides->setChildrenCollapsible(false);
    sides->setHandleWidth(Style::apart);
    sides->addWidget(roster);
    sides->addWidget(editor);
    sides->setStretchFactor(0, 2);
    sides->setStretchFactor(1, 3);
    rosterOrAdvice->addWidget(sides);
    rosterOrAdvice->addWidget(noPatients);
    rosterOrAdvice->addWidget(firstSteps);
    setFocusProxy(roster);

    auto* heading = new PageHeading(this);
    heading->setTexts(qtTrId("pagePatients"), qtTrId("patientsDetail"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Style::apart);
    column->addWidget(heading);
    column->addWidget(rosterOrAdvice, 1);
    buttons = makeButtons();
    column->addWidget(buttons);
}

PatientButtons* PatientViewController::makeButtons() {
    auto* made = new PatientButtons(this);
    connect(made, &PatientButtons::newWanted, this, &PatientViewController::btnNewPatient);
    connect(made, &PatientButtons::deleteWanted, this, &PatientViewController::btnDeletePatient);
    connect(made, &PatientButtons::saveWanted, this, &PatientViewController::btnSavePatient);
    connect(made, &PatientButtons::sendIDWanted, this, &PatientViewController::sendID);
    connect(made, &PatientButtons::downloadWanted, this, [this] {
        if (leave()) emit dataTransferWanted();
    });
    connect(made, &PatientButtons::focusLost, roster, [this] { roster->setFocus(); });
    return made;
}

void PatientViewController::LoadData() { enableButtons(); }

void PatientViewController::UpdateUIBySetting() { showRecord(store.getCurrentID()); }

void PatientViewController::setHWButtons(bool) { enableButtons(); }

bool PatientViewController::isNewOne(const QString& ID) const { return newPatient && ID == "-"_L1; }

/// Changed here, and no longer in the file: another program took it out, or the file cannot be read. What was
/// typed stays, and saving adds the patient again.
bool PatientViewController::isGone(const QString& ID) const {
    const PatientForm& shown = editor->shownForm();
    return !shown.isNew() && shown.patient().ID == ID && !store.validIDinXML(ID) && editor->isChanged();
}

bool PatientViewController::isThere(const QString& ID) const {
    return isNewOne(ID) || store.validIDinXML(ID) || isGone(ID);
}

PatientForm PatientViewController::formOf(const QString& ID) const {
    const PatientModel* patient = isGone(ID)     ? &editor->shownForm().patient()
                                  : isNewOne(ID) ? nullptr
                                                 : store.getPatientByID(ID);
    return {patient ? *patient : PatientForm::newPatient(), store.getSetting(), !patient};
}

/// Keeps the selection by the patient's ID; a patient that is gone gives way to the first.
void PatientViewController::reload() {
    const QString why = qtTrId("dataFileUnreadable");
    noPatients->setTexts(why, store.lastLoad() ? why : describe(store.lastLoad().error()));
    roster->reload(newPatient.has_value());
    const auto& patients = store.getPatientArray();
    if (store.lastLoad() && patients.empty()) tellCopy();
    const QString first = patients.empty() ? QString() : patients.front().ID;
    const QString instead = newPatient ? u"-"_s : first;
    if (store.validIDinXML(toldGone)) toldGone = QString();
    const bool isOther = isShownGone();
    const PatientModel& gone = editor->shownForm().patient();
    if (isOther && toldGone != gone.ID) emit replaced(knownName(gone));
    open(isThere(store.getCurrentID()) ? store.getCurrentID() : instead);
    if (isOther) leaveEditor();
    emit rosterChanged(!patients.empty());
    tellIfGone();
}

/// An empty data file may be one that was made anew since the other was lost.
void PatientViewController::tellCopy() {
    const auto copy = store.backups().newest(1);
    const auto content = copy ? store.backups().content(copy->name) : BackupContent{};
    if (!copy || !content) return firstSteps->tellCopy({}, {});
    firstSteps->tellCopy(copy->name, describe(*content, std::as_const(store).getSetting().shownDateFormat()));
}

/// Without anything typed, so that another one takes the place.
bool PatientViewController::isShownGone() const {
    const PatientForm& shown = editor->shownForm();
    const QString ID = store.getCurrentID();
    return store.lastLoad() && !shown.isNew() && shown.patient().ID == ID && !isThere(ID);
}

/// What is typed next is not meant for the patient who is shown instead.
void PatientViewController::leaveEditor() {
    const QWidget* focused = window()->focusWidget();
    if (focused && editor->isAncestorOf(focused)) roster->setFocus();
}

void PatientViewController::tellIfGone() {
    const QString ID = store.getCurrentID();
    if (!store.lastLoad() || !isGone(ID) || std::exchange(toldGone, ID) == ID) return;
    const QString told = qtTrId("patientGone").arg(knownName(editor->shownForm().patient()));
    parts.panel.interject(this, [this, told] { parts.panel.ShowMessage(told, qtTrId("Warning")); });
}

void PatientViewController::open(const QString& ID) {
    store.setCurrentID(ID);
    const bool isAnyone = isThere(ID);
    rosterOrAdvice->setCurrentWidget(isAnyone ? rosterOrAdvice->widget(0) : insteadOfRoster());
    roster->select(ID);
    showRecord(ID);
    enableButtons();
}

QWidget* PatientViewController::insteadOfRoster() const {
    return store.lastLoad() ? static_cast<QWidget*>(firstSteps) : noPatients;
}

/// What was typed over the same record stays over what the record is now.
void PatientViewController::showRecord(const QString& ID) {
    const PatientForm form = formOf(ID);
    const PatientForm& before = editor->shownForm();
    const bool isSame = before.isNew() == form.isNew() && before.patient().ID == form.patient().ID;
    if (isSame)
        editor->showPatient(form, editor->typedOver(form));
    else
        editor->showPatient(form, isNewOne(ID) ? newPatient->form.inUnitsOf(form.units(), newPatient->entry)
                                               : form.entryOf());
}

void PatientViewController::goTo(const QString& ID) {
    if (!ID.isNull() && ID != store.getCurrentID() && leave() && isThere(ID)) return open(ID);
    roster->select(store.getCurrentID());
}

void PatientViewController::showPatient(const QString& ID) {
    if (ID == store.getCurrentID() || !store.validIDinXML(ID)) return;
    roster->showAll(); // also one that the search leaves out
    goTo(ID);
}

bool PatientViewController::leave() {
    const QString ID = store.getCurrentID();
    if (!isThere(ID)) return true;
    if (editor->isChanged()) {
        const SaveAnswer answer = askToSave(qtTrId("confirmSendSave"));
        if (answer == SaveAnswer::save) return btnSavePatient();
        if (answer == SaveAnswer::cancel) return false;
    }
    // What was typed for a new patient can be gone on with.
    if (isNewOne(ID))
        newPatient = {editor->shownForm(), editor->entry()};
    else if (isGone(ID))
        forget();
    else
        editor->showPatient(formOf(ID));
    return true;
}

bool PatientViewController::isEdited() const { return isThere(store.getCurrentID()) && editor->isChanged(); }

bool PatientViewController::readyToPrint() {
    if (!isThere(store.getCurrentID()) || !editor->isChanged()) return true;
    const SaveAnswer answer = askToSave(qtTrId("confirmPrintSave"));
    return answer == SaveAnswer::save ? btnSavePatient() : answer == SaveAnswer::discard;
}

/// What was typed over a patient who is gone is not wanted any more either.
void PatientViewController::forget() {
    editor->settle();
    reload();
}

bool PatientViewController::settle() {
    const bool wasNewOne = isNewOne(store.getCurrentID());
    if (!leave()) return false;
    if (wasNewOne || !newPatient || !newPatient->form.isChanged(newPatient->entry, today())) return true;
    open(u"-"_s);
    return leave();
}

QJsonArray PatientViewController::saveQuietly() {
    QJsonArray unsaved;
    const auto save = [&](const PatientForm& form, const PatientEntry& entry) {
        if (!writer.isSavedQuietly(form, entry, today())) unsaved.append(draftOf(form, entry));
    };
    const bool isNewShown = isNewOne(store.getCurrentID());
    // The new one first: it stays open beside another when they are taken up.
    if (newPatient && !isNewShown && newPatient->form.isChanged(newPatient->entry, today()))
        save(newPatient->form, newPatient->entry);
    if (isThere(store.getCurrentID()) && editor->isChanged()) save(editor->shownForm(), editor->entry());
    return unsaved;
}

bool PatientViewController::takeUp(const QJsonObject& draft) {
    const QString ID = draft[u"ID"_s].toString();
    if (editor->isChanged() && !isNewOne(store.getCurrentID())) return false; // one after the other
    if (!ID.isEmpty() && store.validIDinXML(ID)) {
        open(ID);
        editor->showPatient(formOf(ID), typedIn(draft, formOf(ID).entryOf()));
        return true;
    }
    if (newPatient) return false;
    const PatientForm blank(PatientForm::newPatient(), store.getSetting(), true);
    PatientEntry entry = blank.entryOf();
    entry[PatientField::ID] = ID; // of a patient who is gone meanwhile
    showNew({blank, typedIn(draft, entry)});
    return true;
}

Instant PatientViewController::today() const {
    return std::chrono::floor<std::chrono::milliseconds>(parts.clock.now());
}

SaveAnswer PatientViewController::askToSave(const QString& question) {
    const PatientModel typed = editor->shownForm().record(editor->entry());
    const QString name = editor->shownForm().isNew() ? shortName(typed) : knownName(typed);
    return parts.panel.AskToSave(question.arg(name), qtTrId("SavePatient"));
}

void PatientViewController::btnNewPatient() {
    if (newPatient) return parts.panel.ShowMessage(qtTrId("DupNewPatient"), qtTrId("Warning"));
    openNewPatient({});
}

/// Something is typed for the new patient who is there already.
bool PatientViewController::isNewOneBegun() const {
    if (isNewOne(store.getCurrentID())) return editor->isChanged();
    return newPatient && newPatient->form.isChanged(newPatient->entry, today());
}

void PatientViewController::addPatient(const QString& ID) {
    if (isNewOneBegun()) return parts.panel.ShowMessage(qtTrId("DupNewPatient"), qtTrId("Warning"));
    openNewPatient(ID);
}

void PatientViewController::openNewPatient(const QString& ID) {
    if (!writer.canWrite() || !leave()) return;
    const PatientForm blank(PatientForm::newPatient(), store.getSetting(), true);
    PatientEntry entry = blank.entryOf();
    if (!ID.isEmpty()) entry[PatientField::ID] = ID;
    showNew({blank, entry});
    editor->beginTyping();
}

void PatientViewController::showNew(Unsaved begun) {
    newPatient = std::move(begun);
    roster->showAll();
    roster->reload(true);
    open(u"-"_s);
    editor->showPatient(newPatient->form, newPatient->entry); // not the blank one of an empty roster
}

bool PatientViewController::btnSavePatient() {
    if (!isThere(store.getCurrentID()) || !writer.isUnique(store.getCurrentID())) return false;
    const auto found = writer.problems(editor->shownForm(), editor->entry(), today());
    editor->mark(found);
    if (!found.empty()) {
        writer.refuse(found);
        return false;
    }
    const PatientModel record = editor->shownForm().record(editor->entry());
    const bool isMissing = editor->shownForm().isNew() || isGone(record.ID);
    return (isMissing ? writer.add(record) : writer.write(record, editor->shownForm().patient()))
           && saved(record);
}

/// A record of the file that lacks an element has no place for that field, and the user has to know.
bool PatientViewController::saved(const PatientModel& record) {
    const PatientForm before(editor->shownForm().patient(), store.getSetting(), false);
    const PatientEntry wanted = PatientForm(record, store.getSetting(), false).entryOf();
    if (editor->shownForm().isNew()) newPatient.reset();
    editor->settle();
    const bool wasListed = roster->isListed(store.getCurrentID());
    writer.loadAnew(record.ID);
    if (wasListed) roster->showSelected(); // by another name it may stand elsewhere
    // What was not changed here, another program may have changed.
    const PatientEntry kept = formOf(record.ID).entryOf();
    const PatientEntry meant = keepTyped(wanted, before.entryOf(), kept);
    if (!store.validIDinXML(record.ID) || kept == meant) {
        emit said(qtTrId("patientSaved").arg(knownName(record)));
        return true;
    }
    editor->showPatient(formOf(record.ID), meant);
    parts.panel.ShowMessage(qtTrId("patientPartlySaved").arg(knownName(record)), qtTrId("Warning"));
    return false;
}

void PatientViewController::btnDeletePatient() {
    const QString ID = store.getCurrentID();
    if (!isThere(ID) || !writer.isUnique(ID)) return;
    const QString next = roster->neighbourOf(ID);
    if (isNewOne(ID)) {
        if (!isNewOneBegun() || writer.dropNew(editor->shownForm().record(editor->entry())))
            dropNewPatient(next);
        return;
    }
    const PatientModel patient = formOf(ID).patient();
    if (!writer.remove(patient)) return;
    writer.loadAnew(next);
    emit said(qtTrId("patientDeleted").arg(knownName(patient)));
}

void PatientViewController::dropNewPatient(const QString& next) {
    newPatient.reset();
    editor->settle();
    store.setCurrentID(next);
    reload();
}

bool PatientViewController::CanDataTransfer() const {
    return isMonitorFree() && store.getCurrentID() == parts.status.state().IDOnDevice;
}

/// Connected, nothing under way, and a patient to do something for.
bool PatientViewController::isMonitorFree() const {
    const MonitorState& state = parts.status.state();
    return state.isConnected && !parts.status.isBusy() && store.validIDinXML(store.getCurrentID())
           && !IsEmptyID(store.getCurrentID());
}

/// Also when the ID that the monitor holds cannot be read: another one is the remedy.
bool PatientViewController::canSendID() const {
    return isMonitorFree() && store.getCurrentID() != parts.status.state().IDOnDevice;
}

void PatientViewController::enableButtons() {
    const bool isAnyone = isThere(store.getCurrentID());
    buttons->enable({.change = isAnyone, .sendID = canSendID(), .download = CanDataTransfer()});
    buttons->enableSave(isEdited());
}

void PatientViewController::sendID() { sender->sendID(store.getCurrentID()); }

} // namespace zel

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
      opened(store, *editor, parts.clock),
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

/// Keeps the selection by the patient's ID; a patient that is gone gives way to the first.
void PatientViewController::reload() {
    const QString why = qtTrId("dataFileUnreadable");
    noPatients->setTexts(why, store.lastLoad() ? why : describe(store.lastLoad().error()));
    roster->reload(opened.newOne().has_value());
    const auto& patients = store.getPatientArray();
    if (store.lastLoad() && patients.empty()) tellCopy();
    const QString first = patients.empty() ? QString() : patients.front().ID;
    const QString instead = opened.newOne() ? u"-"_s : first;
    if (store.validIDinXML(toldGone)) toldGone = QString();
    const bool isOther = opened.isShownGone();
    const PatientModel& gone = editor->shownForm().patient();
    if (isOther && toldGone != gone.ID) emit replaced(knownName(gone));
    open(opened.isThere(store.getCurrentID()) ? store.getCurrentID() : instead);
    if (isOther) leaveEditor();
    emit rosterChanged(!patients.empty());
    tellIfGone();
}

/// An empty data file may be one that was made anew since the other was lost.
void PatientViewController::tellCopy() {
    const auto newest = store.backups().newest(1);
    if (!newest) return firstSteps->tellCopy({}, {});
    const QString dateFormat = std::as_const(store).getSetting().shownDateFormat();
    firstSteps->tellCopy(newest->copy.name, describe(newest->content, dateFormat));
}

/// What is typed next is not meant for the patient who is shown instead.
void PatientViewController::leaveEditor() {
    const QWidget* focused = window()->focusWidget();
    if (focused && editor->isAncestorOf(focused)) roster->setFocus();
}

void PatientViewController::tellIfGone() {
    const QString ID = store.getCurrentID();
    if (!store.lastLoad() || !opened.isGone(ID) || std::exchange(toldGone, ID) == ID) return;
    const QString told = qtTrId("patientGone").arg(knownName(editor->shownForm().patient()));
    parts.panel.interject(this, [this, told] { parts.panel.ShowMessage(told, qtTrId("Warning")); });
}

void PatientViewController::open(const QString& ID) {
    store.setCurrentID(ID);
    const bool isAnyone = opened.isThere(ID);
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
    const PatientForm form = opened.formOf(ID);
    const PatientForm& before = editor->shownForm();
    const bool isSame = before.isNew() == form.isNew() && before.patient().ID == form.patient().ID;
    if (isSame)
        editor->showPatient(form, editor->typedOver(form));
    else
        editor->showPatient(form, opened.isNewOne(ID)
                                      ? opened.newOne()->form.inUnitsOf(form.units(), opened.newOne()->entry)
                                      : form.entryOf());
}

void PatientViewController::goTo(const QString& ID) {
    if (!ID.isNull() && ID != store.getCurrentID() && leave() && opened.isThere(ID)) return open(ID);
    roster->select(store.getCurrentID());
}

void PatientViewController::showPatient(const QString& ID) {
    if (ID == store.getCurrentID() || !store.validIDinXML(ID)) return;
    roster->showAll(); // also one that the search leaves out
    goTo(ID);
}

bool PatientViewController::leave() {
    const QString ID = store.getCurrentID();
    if (!opened.isThere(ID)) return true;
    if (editor->isChanged()) {
        const SaveAnswer answer = askToSave(qtTrId("confirmSendSave"));
        if (answer == SaveAnswer::save) return btnSavePatient();
        if (answer == SaveAnswer::cancel) return false;
    }
    // What was typed for a new patient can be gone on with.
    if (opened.isNewOne(ID))
        opened.keepNewOne();
    else if (opened.isGone(ID))
        forget();
    else
        editor->showPatient(opened.formOf(ID));
    return true;
}

bool PatientViewController::isEdited() const { return opened.isEdited(); }

bool PatientViewController::readyToPrint() {
    if (!isEdited()) return true;
    const SaveAnswer answer = askToSave(qtTrId("confirmPrintSave"));
    return answer == SaveAnswer::save ? btnSavePatient() : answer == SaveAnswer::discard;
}

/// What was typed over a patient who is gone is not wanted any more either.
void PatientViewController::forget() {
    editor->settle();
    reload();
}

bool PatientViewController::settle() {
    const bool wasNewOne = opened.isNewOne(store.getCurrentID());
    if (!leave()) return false;
    if (wasNewOne || !opened.isNewOneKept()) return true;
    open(u"-"_s);
    return leave();
}

QJsonArray PatientViewController::saveQuietly() {
    QJsonArray unsaved;
    const auto save = [&](const PatientForm& form, const PatientEntry& entry) {
        if (!writer.isSavedQuietly(form, entry, opened.today())) unsaved.append(draftOf(form, entry));
    };
    const bool isNewShown = opened.isNewOne(store.getCurrentID());
    // The new one first: it stays open beside another when they are taken up.
    if (!isNewShown && opened.isNewOneKept()) save(opened.newOne()->form, opened.newOne()->entry);
    if (isEdited()) save(editor->shownForm(), editor->entry());
    return unsaved;
}

bool PatientViewController::takeUp(const QJsonObject& draft) {
    const QString ID = draft[u"ID"_s].toString();
    if (editor->isChanged() && !opened.isNewOne(store.getCurrentID())) return false; // one after the other
    if (!ID.isEmpty() && store.validIDinXML(ID)) {
        open(ID);
        editor->showPatient(opened.formOf(ID), typedIn(draft, opened.formOf(ID).entryOf()));
        return true;
    }
    if (opened.newOne()) return false;
    const PatientForm blank(PatientForm::newPatient(), store.getSetting(), true);
    PatientEntry entry = blank.entryOf();
    entry[PatientField::ID] = ID; // of a patient who is gone meanwhile
    showNew({blank, typedIn(draft, entry)});
    return true;
}

SaveAnswer PatientViewController::askToSave(const QString& question) {
    const PatientModel typed = editor->shownForm().record(editor->entry());
    const QString name = editor->shownForm().isNew() ? shortName(typed) : knownName(typed);
    return parts.panel.AskToSave(question.arg(name), qtTrId("SavePatient"));
}

void PatientViewController::btnNewPatient() {
    if (opened.newOne()) return parts.panel.ShowMessage(qtTrId("DupNewPatient"), qtTrId("Warning"));
    openNewPatient({});
}

void PatientViewController::addPatient(const QString& ID) {
    if (opened.isNewOneBegun()) return parts.panel.ShowMessage(qtTrId("DupNewPatient"), qtTrId("Warning"));
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

void PatientViewController::showNew(OpenPatients::Unsaved begun) {
    opened.begin(std::move(begun));
    roster->showAll();
    roster->reload(true);
    open(u"-"_s);
    editor->showPatient(opened.newOne()->form,
                        opened.newOne()->entry); // not the blank one of an empty roster
}

bool PatientViewController::btnSavePatient() {
    if (!opened.isThere(store.getCurrentID()) || !writer.isUnique(store.getCurrentID())) return false;
    const auto found = writer.problems(editor->shownForm(), editor->entry(), opened.today());
    editor->mark(found);
    if (!found.empty()) {
        writer.refuse(found);
        return false;
    }
    const PatientModel record = editor->shownForm().record(editor->entry());
    const bool isMissing = editor->shownForm().isNew() || opened.isGone(record.ID);
    return (isMissing ? writer.add(record) : writer.write(record, editor->shownForm().patient()))
           && saved(record);
}

/// A record of the file that lacks an element has no place for that field, and the user has to know.
bool PatientViewController::saved(const PatientModel& record) {
    const PatientForm before(editor->shownForm().patient(), store.getSetting(), false);
    const PatientEntry wanted = PatientForm(record, store.getSetting(), false).entryOf();
    if (editor->shownForm().isNew()) opened.dropNewOne();
    editor->settle();
    const bool wasListed = roster->isListed(store.getCurrentID());
    writer.loadAnew(record.ID);
    if (wasListed) roster->showSelected(); // by another name it may stand elsewhere
    // What was not changed here, another program may have changed.
    const PatientEntry kept = opened.formOf(record.ID).entryOf();
    const PatientEntry meant = keepTyped(wanted, before.entryOf(), kept);
    if (!store.validIDinXML(record.ID) || kept == meant) {
        emit said(qtTrId("patientSaved").arg(knownName(record)));
        return true;
    }
    editor->showPatient(opened.formOf(record.ID), meant);
    parts.panel.ShowMessage(qtTrId("patientPartlySaved").arg(knownName(record)), qtTrId("Warning"));
    return false;
}

void PatientViewController::btnDeletePatient() {
    const QString ID = store.getCurrentID();
    if (!opened.isThere(ID) || !writer.isUnique(ID)) return;
    const QString next = roster->neighbourOf(ID);
    if (opened.isNewOne(ID)) {
        if (!opened.isNewOneBegun() || writer.dropNew(editor->shownForm().record(editor->entry())))
            dropNewPatient(next);
        return;
    }
    const PatientModel patient = opened.formOf(ID).patient();
    if (!writer.remove(patient)) return;
    writer.loadAnew(next);
    emit said(qtTrId("patientDeleted").arg(knownName(patient)));
}

void PatientViewController::dropNewPatient(const QString& next) {
    opened.dropNewOne();
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
    const bool isAnyone = opened.isThere(store.getCurrentID());
    buttons->enable({.change = isAnyone, .sendID = canSendID(), .download = CanDataTransfer()});
    buttons->enableSave(isEdited());
}

void PatientViewController::sendID() { sender->sendID(store.getCurrentID()); }

} // namespace zel

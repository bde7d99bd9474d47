#include "app/patients/PatientEditor.h"

#include "app/patients/PatientFieldBox.h"
#include "app/patients/PatientFieldGroup.h"
#include "app/patients/PatientInputs.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/RequiredMark.h"
#include "app/widgets/Style.h"
#include "store/Languages.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>
#include <vector>

namespace zel {

using namespace Qt::StringLiterals;
using enum PatientField;

namespace {

constexpr std::array names{"FamilyName",  "GivenNames", "ID",       "Sex",        "BirthYear",
                           "BirthMonth",  "BirthDay",   "Weight",   "Height",     "Address",
                           "PhoneEmail",  "Smoker",     "Diabetic", "Cholestrol", "FamilyHistory",
                           "PatientNotes"};
static_assert(names.size() == patientFieldTotal);

std::size_t at(PatientField field) { return static_cast<std::size_t>(field); }

QString nameOf(PatientField field) { return QLatin1String(names.at(at(field))); }

QStringList months() {
    QStringList list(qtTrId("birthMonthNone"));
    for (int month = 1; month <= 12; ++month)
        list += textLocale().standaloneMonthName(month);
    return list;
}

QStringList days() {
    QStringList list(qtTrId("birthDayNone"));
    for (int day = 1; day <= 31; ++day)
        list += QString::number(day);
    return list;
}

/// The field at which a problem of this field is told.
PatientField judgedAt(PatientField field) {
    return field == BirthMonth || field == BirthDay ? BirthYear : field;
}

} // namespace

PatientEditor::PatientEditor(const Clock& wallClock, QWidget* parent)
    : QScrollArea(parent), clock(wallClock), form({}, {}, true), lblAge(new QuietLabel({}, this)) {
    setObjectName(u"patientEditor"_s);
    setAccessibleName(qtTrId("patientEditor"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    auto* groups = new QWidget;
    auto* column = new QVBoxLayout(groups);
    column->setContentsMargins(0, 0, Style::near, 0); // beside the scroll bar
    column->setSpacing(Style::apart);
    addPersonalData(*column);
    addRiskFactors(*column);
    addNotes(*column);
    column->addStretch(1);
    setWidget(groups);
    groups->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    lblAge->setObjectName(u"lblAge"_s);
}

void PatientEditor::addPersonalData(QVBoxLayout& column) {
    auto* group = new PatientFieldGroup(qtTrId("personalData"), this);
    group->add(makeBox(FamilyName, qtTrId("fieldFamilyName"), makeLine(FamilyName)));
    group->add(makeBox(GivenNames, qtTrId("fieldGivenNames"), makeLine(GivenNames)));
    group->add(makeBox(ID, qtTrId("fieldID"), makeLine(ID)));
    group->add(
        makeBox(Sex, qtTrId("fieldSex"), makeChoiceInput(nameOf(Sex), {qtTrId("Female"), qtTrId("Male")})));
    group->add(makeBirthDate(), true);
    group->add(makeBox(Weight, qtTrId("fieldWeightKg"), makeLine(Weight)));
    group->add(makeBox(Height, qtTrId("fieldHeightCm"), makeLine(Height)));
    group->add(makeBox(Address, qtTrId("fieldAddress"), makeTextInput(nameOf(Address), 3)));
    group->add(makeBox(PhoneEmail, qtTrId("fieldPhoneEmail"), makeTextInput(nameOf(PhoneEmail), 3)));
    group->addNote(requiredNote(group));
    for (const PatientField field : PatientForm::required)
        box(field).setRequired();
    column.addWidget(group);
}

void PatientEditor::addRiskFactors(QVBoxLayout& column) {
    const QStringList answers{qtTrId("answerNo"), qtTrId("answerYes")};
    auto* group = new PatientFieldGroup(qtTrId("riskFactors"), this);
    group->add(makeBox(Smoker, qtTrId("fieldSmoker"), makeChoiceInput(nameOf(Smoker), answers)));
    group->add(makeBox(Diabetic, qtTrId("fieldDiabetic"), makeChoiceInput(nameOf(Diabetic), answers)));
    group->add(makeBox(Cholestrol, qtTrId("fieldCholestrol"), makeLine(Cholestrol)));
    group->add(makeBox(FamilyHistory, qtTrId("fieldFamilyHistory"), makeTextInput(nameOf(FamilyHistory), 3)),
               true);
    column.addWidget(group);
}

void PatientEditor::addNotes(QVBoxLayout& column) {
    auto* group = new PatientFieldGroup(qtTrId("notes"), this);
    group->add(makeBox(PatientNotes, qtTrId("fieldPatientNotes"), makeTextInput(nameOf(PatientNotes), 6)),
               true);
    column.addWidget(group);
}

PatientFieldBox* PatientEditor::makeBirthDate() {
    auto* birth = new PatientFieldBox(qtTrId("fieldDateOfBirth"), this);
    birth->setObjectName(u"DateOfBirth"_s);
    auto* year = qobject_cast<QLineEdit*>(makeLine(BirthYear));
    setPlaceholder(*year, qtTrId("birthYearNone"));
    year->setMinimumWidth(year->fontMetrics().averageCharWidth() * 7);
    const auto add = [&](PatientField field, QWidget* input, const QString& name, int stretch) {
        birth->addInput(input, qtTrId("infoLine").arg(qtTrId("fieldDateOfBirth"), name), stretch);
        place(field, birth, input);
    };
    add(BirthYear, year, qtTrId("birthYearNone"), 2);
    add(BirthMonth, makeChoiceInput(nameOf(BirthMonth), months()), qtTrId("birthMonthNone"), 3);
    add(BirthDay, makeChoiceInput(nameOf(BirthDay), days()), qtTrId("birthDayNone"), 2);
    birth->addRemark(lblAge);
    return birth;
}

QWidget* PatientEditor::makeLine(PatientField field) {
    return makeLineInput(nameOf(field), [this, field](const QString& text) {
        PatientEntry typed = entry();
        typed[field] = text;
        return form.refusal(field, typed, today()).isEmpty();
    });
}

PatientFieldBox* PatientEditor::makeBox(PatientField field, const QString& title, QWidget* input) {
    auto* box = new PatientFieldBox(title, this);
    box->addInput(input, title);
    place(field, box, input);
    return box;
}

void PatientEditor::place(PatientField field, PatientFieldBox* box, QWidget* input) {
    inputs.at(at(field)) = input;
    boxes.at(at(field)) = box;
    input->installEventFilter(this);
    whenEdited(*input, [this, field] { edited(field); });
}

QWidget& PatientEditor::input(PatientField field) const { return *inputs.at(at(field)); }

PatientFieldBox& PatientEditor::box(PatientField field) const { return *boxes.at(at(field)); }

Instant PatientEditor::today() const { return std::chrono::floor<std::chrono::milliseconds>(clock.now()); }

PatientEntry PatientEditor::entry() const {
    PatientEntry typed;
    forEachPatientField([&](PatientField field) {
        if (inputs.at(at(field))) typed[field] = inputText(input(field));
    });
    return typed;
}

void PatientEditor::showPatient(const PatientForm& record) { showPatient(record, record.entryOf()); }

/// The inputs may change what they are given, a line end for one; what they make of the record is its entry.
/// One whose text stays is left alone: what was typed there can still be taken back, unless for another
/// patient.
void PatientEditor::showPatient(const PatientForm& record, const PatientEntry& typed) {
    const bool isSame = form.isNew() == record.isNew() && form.patient().ID == record.patient().ID;
    form = record;
    const PatientEntry given = record.entryOf();
    std::vector<std::function<void()>> carets;
    forEachPatientField([&](PatientField field) { carets.push_back(keepCaret(input(field))); });
    PatientEntry shown;
    forEachPatientField(
        [&](PatientField field) { shown[field] = textAfterSetting(input(field), given[field]); });
    form.setShown(shown);
    forEachPatientField([&](PatientField field) {
        const QString& wanted = typed[field] == given[field] ? shown[field] : typed[field];
        if (!isSame || inputText(input(field)) != textAfterSetting(input(field), wanted))
            setInputText(input(field), wanted);
        box(field).setProblem({});
        if (isSame) carets.at(at(field))();
    });
    letTypeID();
    showUnits();
    showAge();
    emit changed();
}

/// The data file keeps the ID of a patient, whom readings and comments belong to by it.
void PatientEditor::letTypeID() {
    auto& line = *qobject_cast<QLineEdit*>(&input(ID));
    line.setReadOnly(!form.isNew());
    line.setFrame(form.isNew());
    QPalette colours;
    if (!form.isNew()) colours.setColor(QPalette::Base, Qt::transparent);
    line.setPalette(colours);
    line.setToolTip(form.isNew() ? QString() : qtTrId("IDStays"));
}

PatientEntry PatientEditor::typedOver(const PatientForm& other) const {
    const SettingModel& units = other.units();
    return keepTyped(form.inUnitsOf(units, entry()), form.inUnitsOf(units, form.shownEntry()),
                     other.entryOf());
}

bool PatientEditor::isChanged() const { return form.isChanged(entry(), today()); }

void PatientEditor::mark(const std::vector<PatientProblem>& found) {
    forEachPatientField([&](PatientField field) { box(field).setProblem({}); });
    for (const PatientProblem& problem : found)
        box(problem.field).setProblem(problem.text);
    if (found.empty()) return;
    const auto first = std::ranges::min_element(found, {}, &PatientProblem::field);
    input(first->field).setFocus();
    widget()->layout()->activate(); // the words below the fields take their place first
    ensureWidgetVisible(&box(first->field));
}

void PatientEditor::beginTyping() {
    ensureVisible(0, 0);
    input(FamilyName).setFocus();
}

/// A problem that is told goes away with its cause, and comes up only when the field is left.
void PatientEditor::edited(PatientField field) {
    if (judgedAt(field) == BirthYear) showAge();
    if (!box(field).problem().isEmpty()) judge(field);
    emit changed();
}

void PatientEditor::judge(PatientField field) {
    box(field).setProblem(form.refusal(judgedAt(field), entry(), today()));
}

bool PatientEditor::isInBirthDate(const QWidget* widget) const {
    return widget == &input(BirthYear) || widget == &input(BirthMonth) || widget == &input(BirthDay);
}

bool PatientEditor::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        ensureWidgetVisible(qobject_cast<QWidget*>(watched)->parentWidget());
    const bool isLeft = event->type() == QEvent::FocusOut
                        && static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason
                        && static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason;
    const auto left = std::ranges::find(inputs, watched);
    if (!isLeft || left == inputs.end()) return QScrollArea::eventFilter(watched, event);
    // The three parts of a date of birth are left together.
    const auto field = static_cast<PatientField>(left - inputs.begin());
    const bool isStillInside = isInBirthDate(*left) && isInBirthDate(QApplication::focusWidget());
    if (!isStillInside && box(field).problem().isEmpty()) judge(field);
    return QScrollArea::eventFilter(watched, event);
}

void PatientEditor::showUnits() {
    const bool isMetric = form.units().isMetric();
    box(Weight).setTitle(isMetric ? qtTrId("fieldWeightKg") : qtTrId("fieldWeightLb"));
    box(Height).setTitle(isMetric ? qtTrId("fieldHeightCm") : qtTrId("fieldHeightFtIn"));
}

void PatientEditor::showAge() {
    const PatientEntry typed = entry();
    const Date birth = PatientForm::birthDate(typed);
    const bool isKnown = birth && *birth <= today();
    lblAge->setText(isKnown ? qtTrId("age").arg(GetAge(*birth, today())) : QString());
}

} // namespace zel

#include "app/settings/SettingForm.h"

#include "app/widgets/CalmComboBox.h"
#include "app/widgets/Log.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/SeenName.h"
#include "app/widgets/Style.h"
#include "store/Languages.h"
#include "store/SettingKeys.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QTextDocument>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int whoSystolic = 140, whoDiastolic = 90; ///< mmHg, at or above which WHO speaks of hypertension

/// Six lines, and as high as its neighbour.
class AddressEdit final : public QPlainTextEdit {
public:
    AddressEdit() { setMinimumHeight(fontMetrics().lineSpacing() * 6 + 12); }
    [[nodiscard]] QSize sizeHint() const override {
        return {QPlainTextEdit::sizeHint().width(), minimumHeight()};
    }
};

/// The file's own text in words to be shown.
QString shownEntry(const QString& entry) {
    if (entry == "dd mm yyyy"_L1) return qtTrId("dd mm yyyy");
    if (entry == "mm dd yyyy"_L1) return qtTrId("mm dd yyyy");
    if (entry == "yyyy mm dd"_L1) return qtTrId("yyyy mm dd");
    if (entry == "12-hours"_L1) return qtTrId("12-hours");
    if (entry == "24-hours"_L1) return qtTrId("24-hours");
    return entry;
}

/// What an entry stands for are the file's own texts. A setting that is none of them leaves the list at the
/// entry that it counts as, so that OK does not change what the pages show.
void fillList(QComboBox& list, const QStringList& entries, int whenUnknown, const QString& setting) {
    list.clear();
    for (const QString& entry : entries)
        list.addItem(shownEntry(entry), entry);
    list.setCurrentIndex(whenUnknown);
    SettingForm::setSelectItem(list, setting);
}

/// QPlainTextEdit's own plain text would turn no-break spaces into others.
QString textOf(const QPlainTextEdit& field) {
    return field.document()->toRawText().replace(QChar(QChar::ParagraphSeparator), u'\n');
}

template <class Control>
Control* named(Control* control, const QString& name, const QString& title) {
    control->setObjectName(name);
    control->setAccessibleName(title);
    return control;
}

/// A layout, so that field and label lie side by side, where screen readers look for one with the other.
QLayout* withUnit(QLineEdit* field, const QValidator* whole) {
    field->setValidator(whole);
    field->setFixedWidth(field->fontMetrics().averageCharWidth() * 10);
    auto* row = new QHBoxLayout;
    row->setSpacing(Style::near); // or it would have the form's between its lines
    row->addWidget(field);
    row->addWidget(new QLabel(qtTrId("unitMmHg")));
    row->addStretch(1);
    return row;
}

QFormLayout* makeForm(QGroupBox* group) {
    auto* form = new QFormLayout(group);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setVerticalSpacing(Style::tight);
    form->setRowWrapPolicy(QFormLayout::DontWrapRows);
    return form;
}

} // namespace

SettingForm::SettingForm(QWidget* parent)
    : QWidget(parent),
      cboLanguage(named<QComboBox>(new CalmComboBox, u"cboLanguage"_s, qtTrId("settingLanguage"))),
      lblLanguage(new QuietLabel(qtTrId("settingLanguageWhen"))),
      dateFormate(named<QComboBox>(new CalmComboBox, u"dateFormate"_s, qtTrId("settingDate"))),
      timeFormate(named<QComboBox>(new CalmComboBox, u"timeFormate"_s, qtTrId("settingTime"))),
      metricFormate(named<QComboBox>(new CalmComboBox, u"metricFormate"_s, qtTrId("settingUnits"))),
      eraseMeasures(
          named(new QCheckBox(qtTrId("settingEraseButton")), u"eraseMeasures"_s, qtTrId("settingErase"))),
      displayPPorMAP(new QButtonGroup(this)),
      useWHOStandard(
          named(new QCheckBox(qtTrId("settingWHOButton")), u"useWHOStandard"_s, qtTrId("settingWHO"))),
      sys(named(new QLineEdit, u"sys"_s, qtTrId("settingSys"))),
      dia(named(new QLineEdit, u"dia"_s, qtTrId("settingDia"))), lblLimitProblem(new QLabel),
      physisian(named<QPlainTextEdit>(new AddressEdit, u"physisian"_s, qtTrId("settingPhysician"))),
      numberFormater(new QRegularExpressionValidator(QRegularExpression(u"[0-9]{0,3}"_s), this)) {
    build();
    // Only what the user does counts: filling the controls must not change one by way of another.
    connect(useWHOStandard, &QCheckBox::clicked, this, &SettingForm::standardCheckChanged);
    connect(sys, &QLineEdit::textEdited, this, &SettingForm::standardChaged);
    connect(dia, &QLineEdit::textEdited, this, &SettingForm::standardChaged);
}

void SettingForm::build() {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Style::apart);
    grid->setVerticalSpacing(Style::near);
    grid->addWidget(makeDisplayGroup(), 0, 0);
    grid->addWidget(makeLimitGroup(), 1, 0);
    grid->addWidget(makePhysicianGroup(), 0, 1);
    grid->addWidget(makeMonitorGroup(), 1, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(0, 1);
}

QGroupBox* SettingForm::makeDisplayGroup() {
    auto* group = new QGroupBox(qtTrId("settingDisplay"), this);
    QFormLayout* form = makeForm(group);
    fillLanguages();
    form->addRow(qtTrId("settingLanguageLabel"), cboLanguage);
    form->addRow(lblLanguage);
    form->addRow(qtTrId("settingDateLabel"), dateFormate);
    form->addRow(qtTrId("settingTimeLabel"), timeFormate);
    form->addRow(qtTrId("settingUnitsLabel"), metricFormate);
    form->addRow(makeDisplayPPorMAP());
    return group;
}

/// Each by its own name, so that who cannot read the others finds it.
void SettingForm::fillLanguages() {
    cboLanguage->addItem(qtTrId("settingLanguageSystem"), QString());
    for (const Language& each : languages())
        cboLanguage->addItem(each.ownName.toString(), each.tag.toString());
    lblLanguage->setObjectName(u"lblLanguage"_s);
    lblLanguage->setTextFormat(Qt::PlainText);
    lblLanguage->setWordWrap(true);
}

QWidget* SettingForm::makeDisplayPPorMAP() {
    auto* both = named(new QWidget, u"displayPPorMAP"_s, qtTrId("settingPPorMAP"));
    auto* column = new QVBoxLayout(both);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Style::none);
    column->addWidget(new QLabel(qtTrId("settingPPorMAP"), both));
    auto* PP = named(new QRadioButton(qtTrId("settingPPButton")), u"displayPP"_s, qtTrId("settingPP"));
    auto* MAP = named(new QRadioButton(qtTrId("settingMAPButton")), u"displayMAP"_s, qtTrId("settingMAP"));
    for (auto* button : {PP, MAP}) {
        nameAsSeen(*button, button->text(), button->accessibleName());
        displayPPorMAP->addButton(button, button == PP ? 0 : 1);
        column->addWidget(button);
    }
    return both;
}

QGroupBox* SettingForm::makeLimitGroup() {
    auto* group = new QGroupBox(qtTrId("settingLimits"), this);
    QFormLayout* form = makeForm(group);
    useWHOStandard->setToolTip(qtTrId("settingWHOHint"));
    nameAsSeen(*useWHOStandard, useWHOStandard->text(), useWHOStandard->accessibleName());
    form->addRow(useWHOStandard);
    QLayout* sysRow = withUnit(sys, numberFormater);
    QLayout* diaRow = withUnit(dia, numberFormater);
    form->addRow(qtTrId("settingSysLabel"), sysRow);
    form->addRow(qtTrId("settingDiaLabel"), diaRow);
    lblLimitProblem->setObjectName(u"lblLimitProblem"_s);
    lblLimitProblem->setTextFormat(Qt::PlainText);
    lblLimitProblem->setWordWrap(true);
    lblLimitProblem->hide();
    form->addRow(lblLimitProblem);
    for (const auto& [row, field] : {std::pair(sysRow, sys), std::pair(diaRow, dia)})
        qobject_cast<QLabel*>(form->labelForField(row))->setBuddy(field);
    nameAsSeen(*sys, qtTrId("settingSysLabel"), sys->accessibleName());
    nameAsSeen(*dia, qtTrId("settingDiaLabel"), dia->accessibleName());
    return group;
}

QGroupBox* SettingForm::makeMonitorGroup() {
    auto* group = new QGroupBox(qtTrId("monitorPanel"), this);
    monitorBox = new QVBoxLayout(group);
    eraseMeasures->setToolTip(qtTrId("settingEraseHint"));
    nameAsSeen(*eraseMeasures, eraseMeasures->text(), eraseMeasures->accessibleName());
    monitorBox->addWidget(eraseMeasures);
    return group;
}

QGroupBox* SettingForm::makePhysicianGroup() {
    auto* group = new QGroupBox(qtTrId("settingPhysicianTitle"), this);
    auto* column = new QVBoxLayout(group);
    auto* use = new QuietLabel(qtTrId("settingPhysicianUse"), group);
    use->setWordWrap(true);
    physisian->setTabChangesFocus(true);
    column->addWidget(use);
    column->addWidget(physisian, 1);
    return group;
}

void SettingForm::fill(const SettingModel& setting) {
    fillList(*dateFormate, dateFormats(), 0, setting.dateFormat);
    fillList(*timeFormate, timeFormats(), 1, setting.timeFormat);
    fillList(*metricFormate, metricFormats(), 1, setting.metricFormat);
    eraseMeasures->setChecked(setting.eraseRecAfterReading == 1);
    displayPPorMAP->button(setting.showPPorMap == 0 ? 0 : 1)->setChecked(true);
    useWHOStandard->setChecked(setting.userWhoStandard == 1);
    sys->setText(QString::number(setting.sysStandard));
    dia->setText(QString::number(setting.diaStandard));
    tellLimitProblem(std::nullopt);
    physisian->setPlainText(setting.physicianAddress);
}

void SettingForm::fillLanguage(const QString& tag, const QString& problem) {
    const Language* known = languageFor(tag);
    cboLanguage->setCurrentIndex(known ? cboLanguage->findData(known->tag.toString()) : 0);
    lblLanguage->setText(problem.isEmpty() ? qtTrId("settingLanguageWhen") : u"\u26A0 "_s + problem);
    cboLanguage->setAccessibleDescription(lblLanguage->text());
}

QString SettingForm::language() const { return cboLanguage->currentData().toString(); }

void SettingForm::store(SettingModel& setting) const {
    setting.dateFormat = dateFormate->currentData().toString();
    setting.timeFormat = timeFormate->currentData().toString();
    setting.metricFormat = metricFormate->currentData().toString();
    setting.eraseRecAfterReading = eraseMeasures->isChecked() ? 1 : 0;
    setting.showPPorMap = displayPPorMAP->checkedId() == 0 ? 0 : 1;
    setting.userWhoStandard = useWHOStandard->isChecked() ? 1 : 0;
    setting.sysStandard = sys->text().toUInt(); // 0 for an emptied field
    setting.diaStandard = dia->text().toUInt();
    setting.physicianAddress = textOf(*physisian);
}

bool SettingForm::takesLimits() {
    const auto problem = limitProblem(sys->text().toUInt(), dia->text().toUInt());
    tellLimitProblem(problem);
    if (!problem) return true;
    QLineEdit* field = problem == LimitProblem::systolic ? sys : dia;
    field->setFocus();
    field->selectAll();
    return false;
}

void SettingForm::tellLimitProblem(std::optional<LimitProblem> problem) {
    const QString words = problem ? describe(*problem) : QString();
    lblLimitProblem->setText(u"\u26A0 "_s + words);
    lblLimitProblem->setVisible(problem.has_value());
    for (QLineEdit* field : {sys, dia})
        field->setAccessibleDescription(words);
}

void SettingForm::begin() { dateFormate->setFocus(); }

int SettingForm::setSelectItem(QComboBox& list, const QString& text) {
    const int index = list.findData(text, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0) {
        qCInfo(lcApp, "setSelectItem can't find %s", qUtf8Printable(text));
        return -1;
    }
    list.setCurrentIndex(index);
    return index;
}

void SettingForm::standardCheckChanged(bool checked) {
    sys->setText(checked ? QString::number(whoSystolic) : QString());
    dia->setText(checked ? QString::number(whoDiastolic) : QString());
    tellLimitProblem(std::nullopt);
}

void SettingForm::standardChaged() {
    useWHOStandard->setChecked(false);
    tellLimitProblem(std::nullopt);
}

} // namespace zel

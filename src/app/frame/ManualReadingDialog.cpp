#include "app/frame/ManualReadingDialog.h"

#include "app/frame/DialogParts.h"
#include "app/widgets/DayEdit.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/RequiredMark.h"
#include "app/widgets/Style.h"
#include "store/Languages.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTimeEdit>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

const QString timePattern = u"HH:mm"_s;

/// Nothing but digits is a number; anything else is out of every range.
std::uint32_t numberIn(const QLineEdit& field) {
    bool isNumber = false;
    const std::uint32_t number = field.text().trimmed().toUInt(&isNumber);
    return isNumber ? number : 0;
}

/// All of them are required.
QLabel* titleOf(const QString& text, QWidget* field) {
    auto* title = new QLabel(requiredTitle(text));
    title->setBuddy(field);
    field->setAccessibleDescription(requiredDescription());
    return title;
}

} // namespace

ManualReadingDialog::ManualReadingDialog(const SettingModel& settings, const Clock& timeSource,
                                         Store storeTyped, QWidget* parent)
    : QDialog(parent), clock(timeSource), store(std::move(storeTyped)),
      day(new DayEdit(u"readingDay"_s, qtTrId("readingDay"), this)), time(new QTimeEdit(this)),
      problemLine(problemLabel(u"readingProblem"_s, this)) {
    setObjectName(u"ManualReadingDialog"_s);
    setWindowTitle(qtTrId("newReadingTitle"));
    day->setFormat(settings.dateFormat);
    day->setMinimumDate({1900, 1, 1});
    time->setObjectName(u"readingTime"_s);
    time->setAccessibleName(qtTrId("readingTime"));
    time->setLocale(textLocale()); // how it says morning and evening
    time->setDisplayFormat(settings.is12Hours() ? u"hh:mm AP"_s : timePattern);
    auto* form = new QFormLayout;
    form->addRow(titleOf(qtTrId("readingDay"), day), day);
    form->addRow(titleOf(qtTrId("readingTime"), time), time);
    sys = addNumber(*form, u"readingSys"_s, qtTrId("infoSys"), qtTrId("unitMmHg"));
    dia = addNumber(*form, u"readingDia"_s, qtTrId("infoDia"), qtTrId("unitMmHg"));
    pulse = addNumber(*form, u"readingPulse"_s, qtTrId("infoPulse"), qtTrId("unitPulse"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Style::edge, Style::edge, Style::edge, Style::edge);
    column->setSpacing(Style::apart);
    column->addWidget(requiredNote(this));
    column->addLayout(form);
    column->addWidget(problemLine);
    column->addStretch(1);
    column->addWidget(dialogButtons(*this, u"btnSaveReading"_s, qtTrId("saveReading")));
    setMinimumWidth(fontMetrics().averageCharWidth() * 56);
    showTime(std::chrono::floor<Instant::duration>(clock.now()));
    sys->setFocus();
}

QLineEdit* ManualReadingDialog::addNumber(QFormLayout& form, const QString& name, const QString& title,
                                          const QString& unit) {
    auto* field = new QLineEdit(this);
    field->setObjectName(name);
    field->setAccessibleName(qtTrId("valueWithUnit").arg(title, unit));
    field->setMaxLength(8);
    field->setFixedWidth(field->fontMetrics().averageCharWidth() * 12);
    auto* row = new QHBoxLayout;
    row->addWidget(field);
    row->addWidget(new QLabel(unit, this));
    row->addStretch(1);
    form.addRow(titleOf(title, field), row);
    return field;
}

void ManualReadingDialog::showTime(Instant at) {
    day->showDay(at);
    time->setTime(QTime::fromString(DateToStr(at, timePattern), timePattern));
}

void ManualReadingDialog::setReading(const ManualReading& known) {
    setWindowTitle(qtTrId("changeReadingTitle"));
    day->clearMinimumDate(); // an earlier date is shown as it is, to be mended
    if (known.time) showTime(*known.time);
    for (const auto& [field, value] :
         {std::pair(sys, known.sys), std::pair(dia, known.dia), std::pair(pulse, known.pulse)})
        field->setText(QString::number(value));
    sys->selectAll();
}

ManualReading ManualReadingDialog::typed() const {
    day->interpretText();
    time->interpretText();
    return {typedTime(day->date().toString(u"yyyy-MM-dd"_s), time->time().toString(timePattern)),
            numberIn(*sys), numberIn(*dia), numberIn(*pulse)};
}

QWidget* ManualReadingDialog::fieldOf(ManualProblem problem) const {
    switch (problem) {
    case ManualProblem::noDate:
    case ManualProblem::tooEarly:
    case ManualProblem::inFuture: return day;
    case ManualProblem::sys: return sys;
    case ManualProblem::dia:
    case ManualProblem::diaNotBelowSys: return dia;
    case ManualProblem::pulse: return pulse;
    }
    return nullptr;
}

void ManualReadingDialog::accept() {
    const ManualReading reading = typed();
    const auto problem = manualProblem(reading, std::chrono::floor<Instant::duration>(clock.now()));
    if (problem) {
        showProblem(*problemLine, describe(*problem));
        return fieldOf(*problem)->setFocus();
    }
    const QString refusal = store(reading);
    if (refusal.isNull()) return QDialog::accept();
    showProblem(*problemLine, refusal);
}

} // namespace zel

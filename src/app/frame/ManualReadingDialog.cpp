#include "app/frame/ManualReadingDialog.h"

#include "app/frame/DialogParts.h"
#include "app/widgets/DayEdit.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/RequiredMark.h"
#include "app/widgets/SelectOnClick.h"
#include "app/widgets/Style.h"
#include "store/TypedTime.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

const QString timePattern = u"HH:mm"_s;
constexpr int longestTime = 16; ///< letters

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

ManualReadingDialog::ManualReadingDialog(const SettingModel& setting, const Clock& timeSource,
                                         const QString& patient, Store storeTyped, QWidget* parent)
    : QDialog(parent), settings(setting), clock(timeSource), store(std::move(storeTyped)),
      day(new DayEdit(u"readingDay"_s, qtTrId("readingDay"), this)), time(new QLineEdit(this)),
      problemLine(problemLabel(u"readingProblem"_s, this)) {
    setObjectName(u"ManualReadingDialog"_s);
    setWindowTitle(qtTrId("newReadingTitle"));
    day->setFormat(settings.dateFormat);
    time->setObjectName(u"readingTime"_s);
    time->setAccessibleName(qtTrId("readingTime"));
    time->setMaxLength(longestTime);
    time->setFixedWidth(day->sizeHint().width());
    selectOnClick(*time);
    auto* form = new QFormLayout;
    form->addRow(titleOf(qtTrId("readingDay"), day), day);
    form->addRow(titleOf(qtTrId("readingTime"), time), time);
    sys = addNumber(*form, u"readingSys"_s, qtTrId("infoSys"), qtTrId("unitMmHg"));
    dia = addNumber(*form, u"readingDia"_s, qtTrId("infoDia"), qtTrId("unitMmHg"));
    pulse = addNumber(*form, u"readingPulse"_s, qtTrId("infoPulse"), qtTrId("unitPulse"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Style::edge, Style::edge, Style::edge, Style::edge);
    column->setSpacing(Style::apart);
    column->addWidget(heading(patient));
    column->addWidget(requiredNote(this));
    column->addLayout(form);
    column->addWidget(problemLine);
    column->addStretch(1);
    column->addWidget(dialogButtons(*this, u"btnSaveReading"_s, qtTrId("saveReading")));
    setMinimumWidth(fontMetrics().averageCharWidth() * 56);
    showTime(std::chrono::floor<Instant::duration>(clock.now()));
    sys->setFocus();
}

QLabel* ManualReadingDialog::heading(const QString& patient) {
    auto* line = new QLabel(patient, this);
    line->setObjectName(u"readingPatient"_s);
    line->setTextFormat(Qt::PlainText);
    line->setWordWrap(true);
    Style::setType(*line, Style::Type::text);
    return line;
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
    time->setText(settings.timeText(LocalZone{}.dayMinute(at).minute));
}

void ManualReadingDialog::setReading(const ManualReading& known) {
    setWindowTitle(qtTrId("changeReadingTitle"));
    if (known.time) showTime(*known.time);
    for (const auto& [field, value] :
         {std::pair(sys, known.sys), std::pair(dia, known.dia), std::pair(pulse, known.pulse)})
        field->setText(QString::number(value));
    sys->selectAll();
}

QTime ManualReadingDialog::timeIn() const { return typedTimeOfDay(time->text(), settings.is12Hours()); }

ManualReading ManualReadingDialog::typed() const {
    return {typedTime(day->typed().toString(u"yyyy-MM-dd"_s), timeIn().toString(timePattern)), numberIn(*sys),
            numberIn(*dia), numberIn(*pulse)};
}

QLineEdit* ManualReadingDialog::fieldOf(ManualProblem problem) const {
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

void ManualReadingDialog::refuse(QLineEdit& field, const QString& why) {
    showProblem(*problemLine, why);
    field.setFocus();
    field.selectAll();
}

void ManualReadingDialog::accept() {
    constexpr int morning = 8 * 60 + 5, evening = 20 * 60 + 5; // examples
    if (!day->typed().isValid()) return refuse(*day, qtTrId("dayUnread").arg(day->text(), day->form()));
    if (!timeIn().isValid())
        return refuse(
            *time,
            qtTrId("timeUnread").arg(time->text(), settings.timeText(morning), settings.timeText(evening)));
    const ManualReading reading = typed();
    const auto problem = manualProblem(reading, std::chrono::floor<Instant::duration>(clock.now()));
    if (problem) return refuse(*fieldOf(*problem), describe(*problem));
    const QString refusal = store(reading);
    if (refusal.isNull()) return QDialog::accept();
    showProblem(*problemLine, refusal);
}

} // namespace zel

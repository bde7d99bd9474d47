#include "app/widgets/DayEdit.h"

#include "store/Languages.h"

#include <QCalendarWidget>
#include <QEvent>
#include <QItemSelectionModel>
#include <QSignalBlocker>
#include <QTableView>
#include <QWheelEvent>

#include <algorithm>
#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr auto dayPattern = "yyyyMMdd"_L1;

struct Locale {
    QLatin1StringView dateFormat; ///< of the settings
    QLatin1StringView display;
    QLatin1StringView name; ///< decides on which day a week of the calendar begins
};
constexpr std::array locales{Locale{"dd mm yyyy"_L1, "dd/MM/yyyy"_L1, "en_GB"_L1},
                             Locale{"mm dd yyyy"_L1, "MM/dd/yyyy"_L1, "en_US"_L1},
                             Locale{"yyyy mm dd"_L1, "yyyy/MM/dd"_L1, ""_L1},
                             Locale{"yyyy dd mm"_L1, "yyyy/MM/dd"_L1, "zh_TW"_L1}};

} // namespace

DayEdit::DayEdit(const QString& name, const QString& title, QWidget* parent) : QDateEdit(parent) {
    setObjectName(name);
    setAccessibleName(title);
    setToolTip(qtTrId("dayHint"));
    setCalendarPopup(true);
    setKeyboardTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    calendarWidget()->setObjectName(name + "Calendar"_L1);
    calendarWidget()->setAccessibleName(title);
    calendarWidget()->installEventFilter(this);
    hushCalendar(true);
    connect(this, &QDateEdit::dateChanged, this, [this] {
        if (!calendarWidget()->isVisible()) confirm(false);
    });
    // When it is closed, not in the midst of it: a message may follow.
    connect(
        this, &DayEdit::calendarClosed, this, [this] { confirm(true); }, Qt::QueuedConnection);
}

/// To set the same day or format again would write over what is half typed.
void DayEdit::showDay(Instant day) {
    const QSignalBlocker silence(this);
    const QDate before = shown;
    shown = QDate::fromString(DateToStr(day, dayPattern.toString()), dayPattern.toString());
    if (date() != shown || before != shown) setDate(shown);
}

Instant DayEdit::day() const {
    return StrToDate(date().toString(dayPattern.toString()), dayPattern.toString()).value_or(getNilDate());
}

void DayEdit::setFormat(const QString& dateFormat) {
    const auto* known = std::ranges::find(locales, dateFormat, &Locale::dateFormat);
    const bool isKnown = known != locales.end();
    const QLocale wanted = isKnown && !known->name.isEmpty() ? QLocale(known->name.toString()) : QLocale();
    const QString display = isKnown ? known->display.toString() : u"yyyy/MM/dd"_s;
    if (locale() == wanted && displayFormat() == display) return;
    const QSignalBlocker silence(this);
    setLocale(wanted);
    calendarWidget()->setLocale(textLocale()); // its words; on which day a week begins stays
    calendarWidget()->setFirstDayOfWeek(wanted.firstDayOfWeek());
    setDisplayFormat(display);
}

void DayEdit::confirm(bool inCalendar) {
    if (date() == shown) return;
    emit confirmed(inCalendar);
}

/// Rolling over the field on the way elsewhere must not change the period.
void DayEdit::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QDateEdit::wheelEvent(event);
    else
        event->ignore();
}

/// A calendar that nobody sees follows the day all the same, and would tell screen readers that it has the
/// focus.
void DayEdit::hushCalendar(bool isHidden) {
    if (auto* days = calendarWidget()->findChild<QTableView*>())
        days->selectionModel()->blockSignals(isHidden);
}

bool DayEdit::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show) hushCalendar(false);
    if (event->type() == QEvent::Hide) {
        hushCalendar(true);
        emit calendarClosed();
    }
    return QDateEdit::eventFilter(watched, event);
}

} // namespace zel

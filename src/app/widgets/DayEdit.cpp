#include "app/widgets/DayEdit.h"

#include "app/widgets/DayCalendar.h"
#include "app/widgets/SelectOnClick.h"
#include "app/widgets/Style.h"
#include "store/TypedTime.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolButton>

#include <algorithm>
#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr auto dayPattern = "yyyyMMdd"_L1;
constexpr int longestText = 32; ///< letters, however a date is written
constexpr int firstYear = 1900, lastYear = 9999;

struct Locale {
    QLatin1StringView dateFormat; ///< of the settings
    QLatin1StringView display;
    QLatin1StringView name; ///< decides on which day a week of the calendar begins
};
constexpr std::array locales{Locale{"dd mm yyyy"_L1, "dd/MM/yyyy"_L1, "en_GB"_L1},
                             Locale{"mm dd yyyy"_L1, "MM/dd/yyyy"_L1, "en_US"_L1},
                             Locale{"yyyy mm dd"_L1, "yyyy/MM/dd"_L1, ""_L1},
                             Locale{"yyyy dd mm"_L1, "yyyy/MM/dd"_L1, "zh_TW"_L1}};

bool isUsual(const QDate& day) { return day.isValid() && firstYear <= day.year() && day.year() <= lastYear; }

} // namespace

DayEdit::DayEdit(const QString& name, const QString& title, QWidget* parent)
    : QLineEdit(parent), pattern(u"yyyy/MM/dd"_s), arrow(new QToolButton(this)) {
    setObjectName(name);
    setAccessibleName(title);
    setToolTip(qtTrId("dayHint"));
    setMaxLength(longestText);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    selectOnClick(*this);
    arrow->setObjectName(name + "Arrow"_L1);
    arrow->setArrowType(Qt::DownArrow);
    arrow->setAutoRaise(true);
    arrow->setFocusPolicy(Qt::NoFocus);
    arrow->setCursor(Qt::ArrowCursor);
    arrow->setAccessibleName(qtTrId("openCalendar"));
    arrow->setToolTip(arrow->accessibleName());
    connect(arrow, &QToolButton::clicked, this, &DayEdit::openCalendar);
    connect(this, &QLineEdit::returnPressed, this, &DayEdit::finish);
}

/// To set the same day or format again would write over what is half typed.
void DayEdit::showDay(Instant day) {
    const QDate before = shown;
    shown = QDate::fromString(DateToStr(day, dayPattern.toString()), dayPattern.toString());
    if (shown == before && isModified()) return;
    given = shown;
    write();
}

Instant DayEdit::day() const {
    return StrToDate(given.toString(dayPattern.toString()), dayPattern.toString()).value_or(getNilDate());
}

QDate DayEdit::typed() const { return typedDay(text(), pattern); }

void DayEdit::setFormat(const QString& dateFormat) {
    const auto* known = std::ranges::find(locales, dateFormat, &Locale::dateFormat);
    const bool isKnown = known != locales.end();
    week = isKnown && !known->name.isEmpty() ? QLocale(known->name.toString()) : QLocale();
    const QString display = isKnown ? known->display.toString() : u"yyyy/MM/dd"_s;
    if (pattern == display) return;
    pattern = display;
    write();
}

void DayEdit::write() {
    const QString written = given.toString(pattern);
    setModified(false);
    if (text() != written) setText(written);
    if (hasFocus()) selectAll(); // what is typed next takes its place
}

void DayEdit::finish() {
    if (!isModified()) return;
    const QDate day = typed();
    setModified(false); // it has been judged: showDay() may write over it
    if (!isUsual(day)) {
        emit refused(qtTrId("dayUnreadLeft").arg(text(), form()));
        return;
    }
    take(day, false);
}

void DayEdit::take(const QDate& day, bool inCalendar) {
    given = day;
    write();
    if (given != shown) emit confirmed(inCalendar);
}

/// From what is typed, unless that is no day.
void DayEdit::step(int days) {
    const QDate day = typed().addDays(days);
    if (isUsual(day)) take(day, false);
}

void DayEdit::openCalendar() {
    const QDate day = typed();
    auto* calendar = new DayCalendar(isUsual(day) ? day : given, week, accessibleName(), *this);
    // When it is closed, not in the midst of it: a message may follow.
    connect(
        calendar, &DayCalendar::chosen, this, [this](const QDate& chosen) { take(chosen, true); },
        Qt::QueuedConnection);
    calendar->open();
}

void DayEdit::keyPressEvent(QKeyEvent* event) {
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool isAlt = event->modifiers() & Qt::AltModifier;
    if (event->key() == Qt::Key_F4 && isPlain) return openCalendar();
    if (event->key() == Qt::Key_Down && isAlt) return openCalendar();
    if (event->key() == Qt::Key_Up && isPlain) return step(1);
    if (event->key() == Qt::Key_Down && isPlain) return step(-1);
    QLineEdit::keyPressEvent(event);
}

/// Who goes to another window may come back to what is half typed.
void DayEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason) return;
    if (event->reason() == Qt::ActiveWindowFocusReason && !isUsual(typed())) return;
    finish();
}

/// As wide as a date, and its arrow.
QSize DayEdit::sizeHint() const {
    QStyleOptionFrame option;
    initStyleOption(&option);
    const int height = QLineEdit::sizeHint().height();
    const int widest = fontMetrics().horizontalAdvance(u"8888/88/88 "_s);
    const QSize content(widest + arrowSide(height), height);
    return {style()->sizeFromContents(QStyle::CT_LineEdit, &option, content, this).width(), height};
}

int DayEdit::edge() const { return style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this); }

int DayEdit::arrowSide(int ofHeight) const { return ofHeight - 2 * edge(); }

void DayEdit::resizeEvent(QResizeEvent* event) {
    QLineEdit::resizeEvent(event);
    const int side = arrowSide(height());
    arrow->setIconSize(QSize(side, side) - QSize(Style::near, Style::near)); // with the room around it
    arrow->setGeometry(width() - edge() - side, edge(), side, side);
    setTextMargins(0, 0, side, 0);
}

} // namespace zel

#include "app/widgets/DayCalendar.h"

#include "store/Languages.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

DayCalendar::DayCalendar(const QDate& day, const QLocale& week, const QString& title, QWidget& field)
    : QFrame(&field, Qt::Popup), days(new QCalendarWidget(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_NoMouseReplay); // a click on the button closes it, and does not open it again
    setFrameShape(QFrame::StyledPanel);
    setAccessibleName(title);
    days->setObjectName(field.objectName() + "Calendar"_L1);
    days->setAccessibleName(title);
    days->setLocale(textLocale());
    days->setFirstDayOfWeek(week.firstDayOfWeek());
    days->setDateEditEnabled(false); // digits typed there would make days of their own
    days->setSelectedDate(day);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(days);
    setFocusProxy(days);
    connect(days, &QCalendarWidget::clicked, this, &DayCalendar::take);
    connect(days, &QCalendarWidget::activated, this, &DayCalendar::take);
    connect(days, &QCalendarWidget::selectionChanged, this, [this] { taken = days->selectedDate(); });
}

void DayCalendar::open() {
    adjustSize();
    move(place());
    show();
    days->setFocus(Qt::PopupFocusReason);
}

/// Below the field, or above it where the screen ends.
QPoint DayCalendar::place() const {
    const QWidget& field = *parentWidget();
    const QRect room = field.screen()->availableGeometry();
    QPoint at = field.mapToGlobal(QPoint(0, field.height()));
    if (at.y() + height() > room.bottom()) at.setY(field.mapToGlobal(QPoint(0, 0)).y() - height());
    at.setX(std::clamp(at.x(), room.left(), std::max(room.left(), room.right() - width())));
    at.setY(std::max(at.y(), room.top()));
    return at;
}

void DayCalendar::take(const QDate& day) {
    taken = day;
    close();
}

void DayCalendar::keyPressEvent(QKeyEvent* event) {
    isGivenUp = event->key() == Qt::Key_Escape;
    QFrame::keyPressEvent(event); // which closes it then
}

void DayCalendar::hideEvent(QHideEvent* event) {
    QFrame::hideEvent(event);
    if (taken.isValid() && !isGivenUp) emit chosen(taken);
}

} // namespace zel

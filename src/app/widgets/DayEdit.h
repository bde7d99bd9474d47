#pragma once

#include "store/Dates.h"

#include <QDateEdit>

namespace zel {

/// A date picker: typed, stepped, or chosen in its calendar. What is typed counts when Enter is pressed or
/// the field is left, what is looked at in the calendar when that closes.
class DayEdit final : public QDateEdit {
    Q_OBJECT
public:
    DayEdit(const QString& name, const QString& title, QWidget* parent);

    void showDay(Instant day); ///< without a word to anyone
    /// The day's first instant.
    [[nodiscard]] Instant day() const;
    void setFormat(const QString& dateFormat); ///< of the settings

signals:
    void confirmed(bool inCalendar); ///< the user gave another day
    void calendarClosed();

protected:
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QDate shown;
    void confirm(bool inCalendar);
    void hushCalendar(bool isHidden);
};

} // namespace zel

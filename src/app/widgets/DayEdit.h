#pragma once

#include "store/Dates.h"

#include <QDate>
#include <QLineEdit>
#include <QLocale>

class QToolButton;

namespace zel {

/// A day: typed, stepped with Up and Down, or chosen in its calendar (the arrow, F4, Alt+Down). What is typed
/// is taken as a whole when Enter is pressed or the field is left, and is exactly that day or refused.
class DayEdit final : public QLineEdit {
    Q_OBJECT
public:
    DayEdit(const QString& name, const QString& title, QWidget* parent);

    void showDay(Instant day); ///< without a word to anyone
    /// The first instant of the day that was shown or given last, whatever is half typed.
    [[nodiscard]] Instant day() const;
    /// What stands in the field now, of whatever year; an invalid one if it is no day.
    [[nodiscard]] QDate typed() const;
    void setFormat(const QString& dateFormat); ///< of the settings
    /// How a day is written, in words for the user: "DD/MM/YYYY".
    [[nodiscard]] QString form() const { return pattern.toUpper(); }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void confirmed(bool inCalendar); ///< the user gave another day
    /// What was typed is no day from 1900 on. It stands there until the next showDay(). \p why: in words
    void refused(const QString& why);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void finish();
    void take(const QDate& day, bool inCalendar);
    void write();
    void step(int days);
    void openCalendar();
    [[nodiscard]] int edge() const;
    [[nodiscard]] int arrowSide(int ofHeight) const;

    QString pattern;
    QLocale week; ///< decides on which day a week of the calendar begins
    QDate shown;
    QDate given; ///< differs from the shown one until the client shows it
    QToolButton* arrow;
};

} // namespace zel

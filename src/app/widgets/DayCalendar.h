#pragma once

#include <QDate>
#include <QFrame>
#include <QLocale>

class QCalendarWidget;

namespace zel {

/// A calendar over the window, until a day is clicked or Enter pressed in it, Esc, or the mouse beside it.
/// Made when it is wanted, and gone with its window: a hidden one would tell screen readers that it has the
/// focus.
class DayCalendar final : public QFrame {
    Q_OBJECT
public:
    /// \p week: on which day a week begins. \p field: below which it is shown
    DayCalendar(const QDate& day, const QLocale& week, const QString& title, QWidget& field);
    void open();

signals:
    /// Once it is closed: the day that was clicked, or another one than at first that was come to, unless by
    /// Esc.
    void chosen(QDate day);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    [[nodiscard]] QPoint place() const;
    void take(const QDate& day);

    QCalendarWidget* days;
    QDate taken;
    bool isGivenUp = false;
};

} // namespace zel

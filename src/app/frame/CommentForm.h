#pragma once

#include <QPointer>
#include <QWidget>

#include <array>
#include <optional>

class QFrame;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QToolButton;

namespace zel {

/// The controls of the comment panel and what they show, and nothing of where a comment comes from or goes.
class CommentForm final : public QWidget {
    Q_OBJECT
public:
    explicit CommentForm(QWidget* parent);

    void showPatient(const QString& heading);
    /// Empty where there is none. What was typed there is gone.
    void showDates(const QString& begin, const QString& end);
    struct Dates {
        std::optional<QString> begin; ///< none unless it was typed into since it was shown
        std::optional<QString> end;
    };
    [[nodiscard]] Dates typedDates() const;
    void showPosition(std::size_t index, std::size_t total);
    void showNoPosition();
    /// What was measured before and since; empty: nothing to say.
    void showChange(const QString& sentence);
    /// The colour of the comment's box on the chart.
    void showDegree(int degree);

    void showText(const QString& text);
    [[nodiscard]] QString text() const;
    void setReadOnly(bool readOnly);
    /// Typed into since the text was settled last.
    [[nodiscard]] bool isEdited() const;
    void settle(); ///< the text has been saved, or is not wanted any more
    /// A text that can be changed, or none and no colour.
    void enable(bool enabled);
    /// The keyboard goes to the text; Esc gives it back.
    void focusText();
    /// The keyboard goes to the last day.
    void focusEnd();

signals:
    void previousWanted();
    void nextWanted();
    void deleteWanted();
    void textLeft();     ///< for another control
    void datesTyped();   ///< both, as far as they are: the keyboard left them, or Enter was pressed
    void beginEntered(); ///< by Enter, and the last day is not typed yet

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    void buildDay(QLineEdit& day, const QString& name, const QString& title);
    void buildText();
    void enterDay(const QLineEdit& day);
    void leave(const QObject* left, Qt::FocusReason reason);
    bool escape(QObject* from);
    QWidget* makeButtons();

    QLabel* lblPatient;
    QLineEdit* beginDay;
    QLineEdit* endDay;
    std::array<QString, 2> shownDays; ///< in both
    QFrame* textBox;
    QPlainTextEdit* commentText;
    QLabel* lblBeforeAndSince;
    QToolButton* btnPrevious;
    QToolButton* btnNext;
    QLabel* lblPosition;
    QPushButton* btnDelete;
    QPointer<QWidget> cameFrom; ///< had the keyboard before the text
};

} // namespace zel

#pragma once

#include <QWidget>

class QFrame;
class QLabel;
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
    void showDates(const QString& begin, const QString& end);
    void showPosition(std::size_t index, std::size_t total);
    void showNoPosition();
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

signals:
    void previousWanted();
    void nextWanted();
    void deleteWanted();
    void textLeft(); ///< for another control

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    void buildText();
    QWidget* makeButtons();

    QLabel* lblPatient;
    QLabel* lblBeginDate;
    QLabel* lblEndDate;
    QFrame* textBox;
    QPlainTextEdit* commentText;
    QToolButton* btnPrevious;
    QToolButton* btnNext;
    QLabel* lblPosition;
    QPushButton* btnDelete;
};

} // namespace zel

#include "app/patients/PatientInputs.h"

#include "app/widgets/CalmComboBox.h"
#include "app/widgets/Style.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>
#include <QTextDocument>
#include <QValidator>

#include <limits>

namespace zel {

namespace {

/// Refuses no key stroke, only the entry as a whole.
class EntryValidator final : public QValidator {
public:
    EntryValidator(std::function<bool(const QString&)> rule, QObject* parent)
        : QValidator(parent), accepts(std::move(rule)) {}
    State validate(QString& text, int&) const override { return accepts(text) ? Acceptable : Intermediate; }

private:
    std::function<bool(const QString&)> accepts;
};

} // namespace

QLineEdit* makeLineInput(const QString& name, std::function<bool(const QString&)> accepts) {
    auto* input = new QLineEdit;
    input->setObjectName(name);
    input->setMaxLength(std::numeric_limits<int>::max());
    input->setValidator(new EntryValidator(std::move(accepts), input));
    return input;
}

void setPlaceholder(QLineEdit& input, const QString& text) {
    Style::followPlaceholder(input);
    input.setPlaceholderText(text);
}

QPlainTextEdit* makeTextInput(const QString& name, int lines) {
    auto* input = new QPlainTextEdit;
    input->setObjectName(name);
    input->setTabChangesFocus(true);
    const int frame = 2 * (input->frameWidth() + static_cast<int>(input->document()->documentMargin()));
    input->setFixedHeight(input->fontMetrics().lineSpacing() * lines + frame);
    return input;
}

QComboBox* makeChoiceInput(const QString& name, const QStringList& choices) {
    auto* input = new CalmComboBox;
    input->setObjectName(name);
    input->addItems(choices);
    input->setMinimumContentsLength(3);
    return input;
}

QString inputText(const QWidget& input) {
    if (const auto* line = qobject_cast<const QLineEdit*>(&input)) return line->text();
    if (const auto* choice = qobject_cast<const QComboBox*>(&input))
        return QString::number(choice->currentIndex());
    const auto* lines = qobject_cast<const QPlainTextEdit*>(&input);
    // Its own plain text would turn no-break spaces into others.
    return lines ? lines->document()->toRawText().replace(QChar(QChar::ParagraphSeparator), u'\n')
                 : QString();
}

QString textAfterSetting(const QWidget& input, const QString& text) {
    if (qobject_cast<const QLineEdit*>(&input)) return text;
    if (const auto* choice = qobject_cast<const QComboBox*>(&input)) {
        const int index = text.toInt();
        return QString::number(index >= 0 && index < choice->count() ? index : -1);
    }
    const QTextDocument lines(text);
    return lines.toRawText().replace(QChar(QChar::ParagraphSeparator), u'\n');
}

void setInputText(QWidget& input, const QString& text) {
    if (auto* line = qobject_cast<QLineEdit*>(&input)) {
        line->setText(text);
        line->setCursorPosition(0);
    } else if (auto* choice = qobject_cast<QComboBox*>(&input)) {
        choice->setCurrentIndex(text.toInt());
    } else if (auto* lines = qobject_cast<QPlainTextEdit*>(&input)) {
        lines->setPlainText(text);
    }
}

std::function<void()> keepCaret(QWidget& input) {
    const QString text = inputText(input);
    if (auto* line = qobject_cast<QLineEdit*>(&input))
        return [line, text, caret = line->cursorPosition(), begin = line->selectionStart(),
                length = line->selectedText().size()] {
            if (line->text() != text) return;
            if (begin < 0) return line->setCursorPosition(caret);
            const bool isAtBegin = caret == begin;
            line->setSelection(isAtBegin ? begin + static_cast<int>(length) : begin,
                               static_cast<int>(isAtBegin ? -length : length));
        };
    auto* lines = qobject_cast<QPlainTextEdit*>(&input);
    if (!lines) return [] {};
    return [lines, text, caret = lines->textCursor().position(), anchor = lines->textCursor().anchor()] {
        if (inputText(*lines) != text) return;
        QTextCursor cursor = lines->textCursor();
        cursor.setPosition(anchor);
        cursor.setPosition(caret, QTextCursor::KeepAnchor);
        lines->setTextCursor(cursor);
    };
}

void whenEdited(QWidget& input, const std::function<void()>& then) {
    if (auto* line = qobject_cast<QLineEdit*>(&input))
        QObject::connect(line, &QLineEdit::textChanged, line, then);
    else if (auto* choice = qobject_cast<QComboBox*>(&input))
        QObject::connect(choice, &QComboBox::currentIndexChanged, choice, then);
    else if (auto* lines = qobject_cast<QPlainTextEdit*>(&input))
        QObject::connect(lines, &QPlainTextEdit::textChanged, lines, then);
}

} // namespace zel

#pragma once
// The three kinds of input that a patient's fields are typed or chosen in, read and set as texts.

#include <QString>
#include <QStringList>

#include <functional>

class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace zel {

/// One line; its entry is acceptable while \p accepts says so. Whatever is typed stays.
[[nodiscard]] QLineEdit* makeLineInput(const QString& name, std::function<bool(const QString&)> accepts);
/// What an empty line asks for, in a grey that can be read on any background.
void setPlaceholder(QLineEdit& input, const QString& text);
/// Several lines, \p lines of them in view.
[[nodiscard]] QPlainTextEdit* makeTextInput(const QString& name, int lines);
/// A list to choose from, which the mouse wheel passes over.
[[nodiscard]] QComboBox* makeChoiceInput(const QString& name, const QStringList& choices);

/// The text of an input; the position of the choice as a number.
[[nodiscard]] QString inputText(const QWidget& input);
/// What inputText() is once the input is given \p text.
[[nodiscard]] QString textAfterSetting(const QWidget& input, const QString& text);
/// Ends what can be taken back in the input, even if its text stays the same.
void setInputText(QWidget& input, const QString& text);
/// \return puts the caret back to where it is in the input, if its text is the same by then
[[nodiscard]] std::function<void()> keepCaret(QWidget& input);
/// Calls \p then when the user or the program changes the input.
void whenEdited(QWidget& input, const std::function<void()>& then);

} // namespace zel

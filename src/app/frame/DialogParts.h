#pragma once
// What the dialogs about readings have in common.

#include <QDialog>
#include <QString>

class QLabel;

namespace zel {

/// A line that says what is wrong with what was typed; it has no height until it does.
[[nodiscard]] QLabel* problemLabel(const QString& name, QWidget* parent);
void showProblem(QLabel& line, const QString& text); ///< and has it spoken

/// A button that accepts, with this name and text, which Enter presses, too, and one that rejects.
[[nodiscard]] QWidget* dialogButtons(QDialog& dialog, const QString& name, const QString& text);

} // namespace zel

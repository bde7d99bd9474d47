#pragma once

#include <QSet>
#include <QString>

class QMenu;
class QWidget;

namespace zel {

/// The letter that a text marks as its key, in upper case; null if none.
[[nodiscard]] QChar mnemonicOf(const QString& text);
/// Marks a letter of the text, which has no mark yet, that is none of \p taken: where a word begins if
/// possible; a letter in brackets behind a text that is not written
/// in letters. One whose letters are all taken stays without.
[[nodiscard]] QString withMnemonic(const QString& text, const QSet<QChar>& taken);
/// Gives each entry without a mark one that no other entry of the menu has.
void giveMnemonics(QMenu& menu);
/// All that Alt and a letter does in a window: of buttons, labels of fields, and menus.
[[nodiscard]] QSet<QChar> mnemonicsIn(const QWidget& window);

} // namespace zel

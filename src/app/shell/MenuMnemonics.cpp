#include "app/shell/MenuMnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// Letters that every keyboard has.
bool isPlain(QChar c) { return c.unicode() < 128 && c.isLetterOrNumber(); }

qsizetype bestPlace(const QString& text, const QSet<QChar>& taken) {
    for (const bool onlyFirst : {true, false}) {
        for (qsizetype i = 0; i < text.size(); ++i) {
            const bool isFirst = i == 0 || !text[i - 1].isLetterOrNumber();
            const bool isFree = isPlain(text[i]) && !taken.contains(text[i].toUpper());
            if (isFree && (isFirst || !onlyFirst)) return i;
        }
    }
    return -1;
}

} // namespace

QChar mnemonicOf(const QString& text) {
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != u'&') continue;
        if (text[i + 1] != u'&') return text[i + 1].toUpper();
        ++i;
    }
    return {};
}

QString withMnemonic(const QString& text, const QSet<QChar>& taken) {
    const qsizetype place = bestPlace(text, taken);
    if (place >= 0) return QString(text).insert(place, u'&');
    if (std::ranges::any_of(text, isPlain)) return text;
    for (const QChar c : u"ABCDEFGHIJKLMNOPQRSTUVWXYZ1234567890"_s)
        if (!taken.contains(c)) return text + u"(&%1)"_s.arg(c);
    return text;
}

void giveMnemonics(QMenu& menu) {
    QSet<QChar> taken;
    for (const QAction* action : menu.actions())
        taken.insert(mnemonicOf(action->text()));
    for (QAction* action : menu.actions()) {
        if (action->isSeparator() || !mnemonicOf(action->text()).isNull()) continue;
        const QString marked = withMnemonic(action->text(), taken);
        if (marked != action->text()) action->setText(marked);
        taken.insert(mnemonicOf(marked));
    }
}

QSet<QChar> mnemonicsIn(const QWidget& window) {
    QSet<QChar> found;
    const auto isHere = [&](const QWidget* one) { return one->window() == &window; }; // and in no dialog
    for (const auto* button : window.findChildren<QAbstractButton*>())
        if (isHere(button)) found.insert(mnemonicOf(button->text()));
    for (const auto* label : window.findChildren<QLabel*>())
        if (label->buddy() && isHere(label)) found.insert(mnemonicOf(label->text()));
    for (const auto* bar : window.findChildren<QMenuBar*>())
        for (const QAction* menu : bar->actions())
            found.insert(mnemonicOf(menu->text()));
    return found;
}

} // namespace zel

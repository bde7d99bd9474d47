#include "app/shell/KeyList.h"

#include "app/shell/MirrorAction.h"
#include "app/widgets/Mnemonic.h"
#include "app/widgets/PageController.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// The usual one: of others, keyboards have had their time.
QString keyOf(const QAction& action) { return action.shortcut().toString(QKeySequence::NativeText); }

/// A step's name belongs to the menu, which says what the key does just now.
QString whatOf(const QAction& action) {
    if (action.objectName() == "undoStep"_L1) return withoutMnemonic(qtTrId("menuUndo"));
    if (action.objectName() == "redoStep"_L1) return withoutMnemonic(qtTrId("menuRedo"));
    return withoutMnemonic(action.text());
}

/// What only works on some pages says so: a key may mean something else on another.
QString placeOfKey(const QAction& action, const QString& menu) {
    const auto* mirror = qobject_cast<const MirrorAction*>(&action);
    const QStringList pages = mirror ? mirror->pages() : QStringList();
    return pages.isEmpty() ? menu : pages.join(qtTrId(", "));
}

void addMenu(const QMenu& menu, const QString& place, std::vector<KeyRow>& rows) {
    for (const QAction* action : menu.actions()) {
        if (const QMenu* inside = action->menu())
            addMenu(*inside, place, rows);
        else if (!action->shortcut().isEmpty())
            rows.push_back({placeOfKey(*action, place), whatOf(*action), keyOf(*action)});
    }
}

bool isKnown(const std::vector<KeyRow>& rows, const KeyRow& row) {
    return std::ranges::any_of(
        rows, [&](const KeyRow& other) { return other.keys == row.keys && other.what == row.what; });
}

/// What the chart does with keys itself, without an action.
void addChart(const QString& page, std::vector<KeyRow>& rows) {
    const auto add = [&](const QString& words, QKeyCombination first, QKeyCombination second) {
        const auto text = [](QKeyCombination key) {
            return QKeySequence(key).toString(QKeySequence::NativeText);
        };
        rows.push_back({page, words, text(first) + qtTrId(", ") + text(second)});
    };
    add(qtTrId("keysMovePeriod"), Qt::Key_Left, Qt::Key_Right);
    add(qtTrId("keysWidenPeriod"), Qt::Key_Plus, Qt::Key_Minus);
    add(qtTrId("keysWholePeriod"), Qt::Key_PageUp, Qt::Key_PageDown);
    add(qtTrId("keysFirstLast"), Qt::Key_Home, Qt::Key_End);
    add(qtTrId("keysMoveScale"), Qt::Key_Up, Qt::Key_Down);
    add(qtTrId("keysFromReading"), Qt::CTRL | Qt::Key_Left, Qt::CTRL | Qt::Key_Right);
}

/// Those of the monitor's bar, which are no actions, say what they do.
void addMonitorBar(const QWidget& window, std::vector<KeyRow>& rows) {
    for (const auto* key : window.findChildren<QShortcut*>())
        if (!key->whatsThis().isEmpty())
            rows.push_back(
                {qtTrId("monitorPanel"), key->whatsThis(), key->key().toString(QKeySequence::NativeText)});
}

} // namespace

const PageController* pageOf(const QObject* object) {
    while (object && !qobject_cast<const PageController*>(object))
        object = object->parent();
    return qobject_cast<const PageController*>(object);
}

std::vector<KeyRow> keysOf(const QWidget& window) {
    std::vector<KeyRow> rows;
    for (const auto* bar : window.findChildren<QMenuBar*>())
        for (const QAction* menu : bar->actions())
            if (menu->menu()) addMenu(*menu->menu(), withoutMnemonic(menu->text()), rows);
    for (const auto* action : window.findChildren<QAction*>()) {
        const PageController* page = pageOf(action);
        if (!page || action->shortcut().isEmpty()) continue;
        const KeyRow row{page->accessibleName(), whatOf(*action), keyOf(*action)};
        const bool isInMenu = window.findChild<QAction*>(action->objectName() + u"Entry"_s);
        if (!isInMenu && !isKnown(rows, row)) rows.push_back(row);
    }
    if (const auto* chart = window.findChild<PageController*>(u"GraphViewController"_s))
        addChart(chart->accessibleName(), rows);
    addMonitorBar(window, rows);
    return rows;
}

} // namespace zel

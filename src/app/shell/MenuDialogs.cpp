#include "app/shell/MenuDialogs.h"

#include "app/patients/DownloadsDialog.h"
#include "app/shell/KeysDialog.h"
#include "app/shell/MenuMnemonics.h"
#include "app/shell/PageMenus.h"

#include <QMenu>

namespace zel {

using namespace Qt::StringLiterals;

MenuDialogs::MenuDialogs(const DataStore& dataStore, const PageMenus& menus, QMenuBar& bar, QWidget* over)
    : QObject(over), store(dataStore), window(over) {
    addKeys(*bar.actions().constLast()->menu());
    addDownloads(menus.monitorMenu());
}

void MenuDialogs::addKeys(QMenu& help) {
    auto* action = new QAction(qtTrId("menuKeys"), &help);
    action->setObjectName(u"showKeys"_s);
    action->setShortcut(Qt::Key_F1);
    action->setMenuRole(QAction::NoRole);
    help.insertAction(help.actions().value(0), action);
    connect(action, &QAction::triggered, this, &MenuDialogs::showKeys);
}

void MenuDialogs::addDownloads(QMenu& monitor) {
    monitor.addSeparator();
    auto* action = monitor.addAction(qtTrId("menuDownloads"));
    action->setObjectName(u"showDownloads"_s);
    action->setMenuRole(QAction::NoRole);
    showThem = action;
    giveMnemonics(monitor);
    connect(action, &QAction::triggered, this, &MenuDialogs::showDownloads);
    const auto enable = [this, action] { action->setEnabled(store.validIDinXML(store.getCurrentID())); };
    connect(&store, &DataStore::currentIDChanged, action, enable);
    connect(&store, &DataStore::reloaded, action, enable);
    enable();
}

void MenuDialogs::showKeys() {
    if (!keys) {
        keys = new KeysDialog(window);
        connect(keys, &KeysDialog::manualWanted, this, &MenuDialogs::manualWanted);
    }
    keys->showKeys();
}

void MenuDialogs::showDownloads() {
    auto* dialog = new DownloadsDialog(store, window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

} // namespace zel

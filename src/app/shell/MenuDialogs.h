#pragma once

#include "store/DataStore.h"

#include <QMenuBar>

namespace zel {

class KeysDialog;
class PageMenus;

/// What only the menus open: the list of keys, and the current patient's downloads.
class MenuDialogs final : public QObject {
    Q_OBJECT
public:
    /// Adds the entries to the menus. \p over: what the dialogs stand over.
    MenuDialogs(const DataStore& dataStore, const PageMenus& menus, QMenuBar& bar, QWidget* over);

    [[nodiscard]] QAction* downloads() const { return showThem; } ///< opens the list of downloads

signals:
    void manualWanted();

private:
    void addKeys(QMenu& help);
    void addDownloads(QMenu& monitor);
    void showKeys();
    void showDownloads();

    const DataStore& store;
    QWidget* window;
    QAction* showThem = nullptr;
    KeysDialog* keys = nullptr; ///< made on first use and kept
};

} // namespace zel

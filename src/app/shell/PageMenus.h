#pragma once

#include "app/shell/MirrorAction.h"

#include <QMenuBar>

#include <span>

namespace zel {

/// What the buttons of the pages do, in the menus Edit, View and Monitor, with the keys for it.
class PageMenus final : public QObject {
    Q_OBJECT
public:
    /// \p bar: of the window that has the pages, with the menus File, Edit and Help.
    PageMenus(QWidget& window, QMenuBar& bar);

    [[nodiscard]] QMenu& monitorMenu() const { return *monitor; }

private:
    struct Entry;
    void fillEdit(QMenu& menu);
    void fillView(QMenu& menu);
    void fillMonitor(QMenu& menu);
    QMenu* insertMenu(QMenuBar& bar, const QString& name, const QString& title);
    void dress(QMenu& menu);
    void add(QMenu& menu, std::span<const Entry> entries);
    void addGroup(QMenu& menu, const QString& name, const QString& title, std::span<const Entry> entries);

    QWidget& shown;
    QMenu* monitor = nullptr;
};

} // namespace zel

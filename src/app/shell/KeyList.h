#pragma once

#include <QString>

#include <vector>

class QObject;
class QWidget;

namespace zel {

class PageController;

/// What a key does, and where.
struct KeyRow {
    QString place; ///< a menu, or a page
    QString what;
    QString keys; ///< in the user's language
};

/// The page that it is on, if any.
[[nodiscard]] const PageController* pageOf(const QObject* object);

/// The keys of a window with a menu bar, read from its actions: first those of the menus, in their order,
/// then those that only stand on a page, and last what the chart does with keys itself.
[[nodiscard]] std::vector<KeyRow> keysOf(const QWidget& window);

} // namespace zel

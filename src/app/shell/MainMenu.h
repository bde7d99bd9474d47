#pragma once

#include <QMenuBar>

namespace zel {

class MainWindow;

/// The main window's menu bar. Its commands are the window's signals.
[[nodiscard]] QMenuBar* makeMainMenu(MainWindow& window);

} // namespace zel

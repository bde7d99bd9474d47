#pragma once

#include <QMenuBar>

namespace zel {

class DataStore;
class MainWindow;
class MonitorStatus;

/// The main window's menu bar. Its commands are the window's signals.
[[nodiscard]] QMenuBar* makeMainMenu(MainWindow& window, const DataStore& store, const MonitorStatus& status);

} // namespace zel

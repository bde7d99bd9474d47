#pragma once
// The program tried with a simulated monitor: a window of its own over data of its own, which says so.
// Nothing of it can reach the person's data, since it is another file in another folder.

#include "store/DataFile.h"

#include <QString>

#include <tl/expected.hpp>

namespace zel {

class DataStore;
class MainWindow;

/// The folder that stands in the home folder's place, made if need be: zel/demonstration below
/// $XDG_STATE_HOME if that is a whole path, else below ~/.local/state. In words why it cannot be used: where
/// it leads back to the data of \p home, for one.
[[nodiscard]] tl::expected<QString, QString> demonstrationHome(const QString& home);

/// Where its store finds its files, and that what they hold is invented. \p paths: the program's, with its
/// demonstrationHome()
[[nodiscard]] StorePaths demonstrationPaths(StorePaths paths);

/// Starts it beside this program. \return why not, in words; empty when it was started
[[nodiscard]] QString startDemonstration(const QString& home);

/// The window says in title and at its head that all in it is invented.
void markAsDemonstration(MainWindow& window, const DataStore& store);

} // namespace zel

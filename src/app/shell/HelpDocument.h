#pragma once

#include <QString>

#include <functional>

namespace zel {

/// Hands a file to the desktop's own program for it. \return false if there is none
using DocumentOpener = std::function<bool(const QString& path)>;
[[nodiscard]] bool openWithDesktop(const QString& path);
/// Asks the desktop, since what it starts does not say when it finds no program. True where it cannot say.
[[nodiscard]] bool hasPdfViewer();

/// A resource of the manual in the language of the program's texts, which stands for the %1 in its name
/// (":/help%1.pdf": ":/help.de.pdf"); the English one (":/help.pdf") where there is none.
[[nodiscard]] QString manualResource(const QString& name);

/// Puts the manual, a resource of the program, where other programs can read it.
/// \return the file's path; empty if there is no manual, or no place for it
[[nodiscard]] QString unpackHelp(const QString& resource, const QString& folder);

} // namespace zel

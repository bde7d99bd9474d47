#pragma once
// The language that a person has chosen at this computer. It is not beside the data file, which may lie on a
// share and be used by people of several languages.

#include "store/StoreError.h"

#include <QString>

namespace zel {

/// Language.json in the user's configuration: below $XDG_CONFIG_HOME if that is a whole path, else ~/.config.
[[nodiscard]] QString languageFile(const QString& home);

/// The tag of the language chosen; empty: the system's. A file that is there, but cannot be read or names no
/// language that the program has, is notReadable.
[[nodiscard]] tl::expected<QString, StoreError> readLanguageChoice(const QString& file);
/// The same of the user whose home that is; empty, too, where it is no whole path and so nobody's.
[[nodiscard]] tl::expected<QString, StoreError> chosenLanguage(const QString& home);
/// Replaces it whole, and makes its folder. A tag that languageFor() does not know is invalidRecord.
[[nodiscard]] StoreResult writeLanguageChoice(const QString& file, const QString& tag);
/// That the choice could not be read, and what holds instead.
[[nodiscard]] QString describeUnreadLanguage(const StoreError& error);

} // namespace zel

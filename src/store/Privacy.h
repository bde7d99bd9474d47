#pragma once
// Whether anybody else on this computer may read the data file and its copies.

#include "store/StoreError.h"

#include <QStringList>

#include <vector>

namespace zel {

/// Of the data file, what is kept beside it and its copies: the files that others may read. What a folder
/// shares on purpose (FileMode.h), and what lies in a folder that nobody else may enter, is not among them.
[[nodiscard]] QStringList readableByOthers(const QString& dataFile);

/// Takes from others what readableByOthers() tells, and the program's own folders' contents; nothing but
/// permissions is changed. Where the data file is a link, the file that it points to is meant; that one's
/// folder is not the program's. \return what others may read all the same: notMadePrivate, or noPermissions
/// where the file system has none
[[nodiscard]] std::vector<StoreError> makePrivate(const QString& dataFile);

} // namespace zel

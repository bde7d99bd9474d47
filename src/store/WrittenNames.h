#pragma once

#include "store/StoreError.h"

#include <QHash> // of texts
#include <QString>

#include <unordered_map>

namespace zel {

/// The files that one export has written, and whose they are, so that it replaces none of its own: IDs that
/// differ in their case only have one file on some disks.
class WrittenNames {
public:
    /// \return sameFileName if the disk takes \p path for the file just written for another patient
    [[nodiscard]] StoreResult check(const QString& ID, const QString& path) const;
    void add(const QString& ID, const QString& path);

private:
    struct File {
        QString ID;
        QString path;
    };
    std::unordered_map<QString, File>
        files; ///< by a name that is alike on every disk that takes them for one
};

} // namespace zel

#pragma once

#include "store/DataStore.h"
#include "support/ManualClock.h"

#include <QTemporaryDir>

namespace zel::fuzz {

/// A store in a folder of its own, in memory where the system has such a one, and a file beside it.
class ScratchStore {
public:
    ScratchStore();

    ManualClock clock;
    QTemporaryDir folder;
    DataStore store;

    void write(const QString& path, const QByteArray& content) const;
    /// A loaded store of this content.
    void fill(const QByteArray& dataFile);
    [[nodiscard]] QByteArray content() const;
    [[nodiscard]] QString path(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }
    [[nodiscard]] static Records recordsOf(const QByteArray& file);
};

} // namespace zel::fuzz

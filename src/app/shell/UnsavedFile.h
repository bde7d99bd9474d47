#pragma once

#include "store/StoreError.h"

#include <QJsonArray>
#include <QString>

namespace zel {

/// What was typed when the program was ended from outside and could not be saved: a file beside the data
/// file, for its owner alone, that lasts until it has been taken up or deleted.
class UnsavedFile {
public:
    explicit UnsavedFile(const QString& dataFile);
    /// Empty if there is none, or none that can be read.
    [[nodiscard]] QJsonArray read() const;
    /// Replaces what is there; the file goes when nothing is left.
    [[nodiscard]] StoreResult write(const QJsonArray& drafts) const;

private:
    QString path;
};

} // namespace zel

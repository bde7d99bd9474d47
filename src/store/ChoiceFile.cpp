#include "store/ChoiceFile.h"

#include "store/AtomicFile.h"

#include <QFileInfo>
#include <QJsonDocument>

namespace zel {

tl::expected<std::optional<QJsonObject>, StoreError> readChoiceFile(const QString& path) {
    constexpr qint64 largestChoice = qint64{64} * 1024;
    const QFileInfo file{path};
    if (!file.exists() && !file.isSymLink()) return std::nullopt;
    const StoreError unread{StoreErrorCode::notReadable, path, {}};
    if (file.size() > largestChoice) return tl::unexpected{unread};
    const auto text = readFile(path);
    if (!text) return tl::unexpected{unread};
    const QJsonDocument document = QJsonDocument::fromJson(*text);
    if (!document.isObject()) return tl::unexpected{unread};
    return document.object();
}

StoreResult writeChoiceFile(const QString& path, const QJsonObject& choice) {
    return replaceFile(path, QJsonDocument{choice}.toJson());
}

} // namespace zel

#include "app/shell/UnsavedFile.h"

#include "store/AtomicFile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace zel {

UnsavedFile::UnsavedFile(const QString& dataFile)
    : path(QFileInfo(dataFile).path() + QStringLiteral("/Unsaved.json")) {}

QJsonArray UnsavedFile::read() const {
    removeDeadReplacements(path);
    return QJsonDocument::fromJson(readFile(path).value_or(QByteArray())).array();
}

StoreResult UnsavedFile::write(const QJsonArray& drafts) const {
    if (!drafts.isEmpty()) return replaceFile(path, QJsonDocument(drafts).toJson());
    QFile::remove(path);
    return {};
}

} // namespace zel

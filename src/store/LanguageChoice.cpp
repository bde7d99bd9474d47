#include "store/LanguageChoice.h"

#include "store/AtomicFile.h"
#include "store/FileMode.h"
#include "store/Languages.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestLanguageFile = qint64{64} * 1024;

bool isChoice(const QJsonValue& tag) {
    return tag.isString() && (tag.toString().isEmpty() || languageFor(tag.toString()));
}

} // namespace

QString languageFile(const QString& home) {
    const QString configured = qEnvironmentVariable("XDG_CONFIG_HOME");
    const QString folder = QDir::isAbsolutePath(configured) ? configured : home + u"/.config"_s;
    return folder + u"/zel/Language.json"_s;
}

tl::expected<QString, StoreError> readLanguageChoice(const QString& file) {
    const QFileInfo found{file};
    if (!found.exists() && !found.isSymLink()) return QString{};
    const StoreError unread{StoreErrorCode::notReadable, file, {}};
    if (found.size() > largestLanguageFile) return tl::unexpected{unread};
    const auto text = readFile(file);
    if (!text) return tl::unexpected{unread};
    const QJsonValue tag = QJsonDocument::fromJson(*text).object()[u"language"_s];
    if (!isChoice(tag)) return tl::unexpected{unread};
    return tag.toString();
}

StoreResult writeLanguageChoice(const QString& file, const QString& tag) {
    const QJsonObject choice{{u"language"_s, tag}};
    if (!isChoice(tag)) return tl::unexpected{StoreError{StoreErrorCode::invalidRecord, file, {}}};
    if (!makePrivateFolder(QFileInfo{file}.path()))
        return tl::unexpected{StoreError{StoreErrorCode::writeFailed, file, {}}};
    return replaceFile(file, QJsonDocument{choice}.toJson());
}

QString describeUnreadLanguage(const StoreError& error) { return qtTrId("LanguageUnread").arg(error.path); }

} // namespace zel

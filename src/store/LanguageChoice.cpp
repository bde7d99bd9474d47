#include "store/LanguageChoice.h"

#include "store/ChoiceFile.h"
#include "store/FileMode.h"
#include "store/Languages.h"

#include <QDir>
#include <QFileInfo>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

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
    const auto choice = readChoiceFile(file);
    if (!choice) return tl::unexpected{choice.error()};
    if (!*choice) return QString{};
    const QJsonValue tag = (**choice)[u"language"_s];
    if (!isChoice(tag)) return tl::unexpected{StoreError{StoreErrorCode::notReadable, file, {}}};
    return tag.toString();
}

tl::expected<QString, StoreError> chosenLanguage(const QString& home) {
    return QDir::isAbsolutePath(home) ? readLanguageChoice(languageFile(home)) : QString{};
}

StoreResult writeLanguageChoice(const QString& file, const QString& tag) {
    const QJsonObject choice{{u"language"_s, tag}};
    if (!isChoice(tag)) return tl::unexpected{StoreError{StoreErrorCode::invalidRecord, file, {}}};
    if (!makePrivateFolder(QFileInfo{file}.path()))
        return tl::unexpected{StoreError{StoreErrorCode::writeFailed, file, {}}};
    return writeChoiceFile(file, choice);
}

QString describeUnreadLanguage(const StoreError& error) { return qtTrId("LanguageUnread").arg(error.path); }

} // namespace zel

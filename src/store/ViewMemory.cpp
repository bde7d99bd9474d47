#include "store/ViewMemory.h"

#include "store/ChoiceFile.h"
#include "store/FileMode.h"
#include "store/LanguageChoice.h"
#include "store/Log.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <filesystem>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QByteArray linksFollowed(const QString& file) {
    std::error_code unresolved;
    const std::filesystem::path given(QFile::encodeName(file).toStdString());
    const std::filesystem::path real = std::filesystem::weakly_canonical(given, unresolved);
    return QByteArray::fromStdString(unresolved ? given.string() : real.string());
}

QByteArray digest(const QByteArray& content) {
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
}

QString digestOf(const QByteArray& salt, const QString& ID) {
    return QString::fromLatin1(digest(salt + ID.toUtf8()));
}

QByteArray newSalt() {
    QRandomGenerator& random = *QRandomGenerator::system();
    return QByteArray::number(random.generate64(), 16) + QByteArray::number(random.generate64(), 16);
}

} // namespace

QString viewMemoryFile(const QString& home, const QString& dataFile) {
    const QString name = QString::fromLatin1(digest(linksFollowed(dataFile)).first(16));
    return QFileInfo{languageFile(home)}.path() + u"/Window-%1.json"_s.arg(name);
}

ViewMemory::ViewMemory(QString file) : path(std::move(file)) {
    const auto read = readChoiceFile(path);
    if (!read)
        qCWarning(lcStore, "what is remembered of the window cannot be read: %s", qUtf8Printable(path));
    known = read.value_or(std::nullopt).value_or(QJsonObject());
    now = known;
}

void ViewMemory::set(const QString& name, const QJsonValue& value) {
    if (value.isUndefined())
        now.remove(name);
    else
        now[name] = value;
}

StoreResult ViewMemory::save() {
    if (now == known) return {};
    QJsonObject file = readChoiceFile(path).value_or(std::nullopt).value_or(QJsonObject());
    const QStringList names = known.keys() + now.keys();
    for (const QString& name : names) {
        if (now.value(name) == known.value(name)) continue;
        if (now.contains(name))
            file[name] = now.value(name);
        else
            file.remove(name);
    }
    if (!makePrivateFolder(QFileInfo{path}.path()))
        return tl::unexpected{StoreError{StoreErrorCode::writeFailed, path, {}}};
    StoreResult written = writeChoiceFile(path, file);
    if (isInPlace(written)) known = now;
    return written;
}

StoreResult ViewMemory::forget() {
    known = now = {};
    const QFileInfo file{path};
    if ((file.exists() || file.isSymLink()) && !QFile::remove(path))
        return tl::unexpected{StoreError{StoreErrorCode::writeFailed, path, {}}};
    return {};
}

QJsonObject maskedID(const QString& ID) {
    const QByteArray salt = newSalt();
    return {{u"salt"_s, QString::fromLatin1(salt)}, {u"digest"_s, digestOf(salt, ID)}};
}

bool isMaskOf(const QJsonValue& mask, const QString& ID) {
    const QString salt = mask[u"salt"_s].toString();
    return !salt.isEmpty() && mask[u"digest"_s].toString() == digestOf(salt.toLatin1(), ID);
}

} // namespace zel

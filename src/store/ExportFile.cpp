#include "store/ExportFile.h"

#include "store/AtomicFile.h"
#include "store/NewFile.h"
#include "store/Uninterrupted.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestName = 255; // bytes, of every common file system

bool isHexDigit(char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F'); }

/// "%" stays as it is unless what follows would make an escape, or the mark of a digest, of it.
bool beginsEscape(QByteArrayView text) {
    return text.size() > 1
           && (text[1] == '~' || (text.size() > 2 && isHexDigit(text[1]) && isHexDigit(text[2])));
}

/// Disks of other systems, such as most USB sticks, take none of the signs.
bool cannotStand(QByteArrayView text) {
    constexpr QByteArrayView signs{"/\\:*?\"<>|"};
    const char c = text.front();
    return signs.contains(c) || (c >= 0 && c < ' ') || c == '\x7F' || (c == '%' && beginsEscape(text));
}

QByteArray escaped(char c) { return '%' + QByteArray{1, c}.toHex().toUpper(); }

QByteArray escapedName(const QByteArray& ID) {
    if (ID.isEmpty()) return "%";
    // A name that begins with a point is hidden.
    const bool isHidden = ID.startsWith('.');
    QByteArray name = isHidden ? escaped('.') : QByteArray{};
    for (qsizetype i = isHidden ? 1 : 0; i < ID.size(); ++i)
        name += cannotStand(QByteArrayView{ID}.sliced(i)) ? escaped(ID[i]) : ID.sliced(i, 1);
    return name;
}

/// The beginning, up to a whole character, and a digest of the ID.
QByteArray shortened(QByteArray name, const QByteArray& ID, qsizetype longest) {
    const QByteArray digest = "%~" + QCryptographicHash::hash(ID, QCryptographicHash::Sha256).toHex();
    qsizetype length = longest - digest.size();
    while (length > 0 && (static_cast<unsigned char>(name[length]) & 0xC0) == 0x80)
        --length;
    return name.left(length) + digest;
}

bool isSameFile(const QFileInfo& one, const QFileInfo& other) {
    return one.exists() && one.canonicalFilePath() == other.canonicalFilePath();
}

tl::unexpected<StoreError> notPlaced(StoreErrorCode code, const QString& path, const QString& detail = {}) {
    return tl::unexpected{StoreError{code, path, detail}};
}

tl::unexpected<StoreError> systemRefused(StoreErrorCode code, const QString& path) {
    return notPlaced(code, path, QString::fromLocal8Bit(std::strerror(errno)));
}

/// Short, since the file's own name may be as long as a name can be.
QString exportPrefix(const QString& folder) { return folder + u"/.zel-"_s; }

/// Written beside its place and renamed, which replaces what is there at once.
StoreResult place(const QString& path, const QByteArray& content) {
    auto file = NewFile::create(exportPrefix(QFileInfo{path}.path()));
    if (!file) return tl::unexpected{writeError(file.error(), path)};
    int error = file->write(content);
    if (error == 0) error = file->followFolder();
    if (error == 0) error = file->takePlace(path);
    if (error != 0) return tl::unexpected{writeError(error, path)};
    return {};
}

} // namespace

QString exportFileName(const QString& ID, const QString& extension, bool isDemonstration) {
    const QString mark = isDemonstration ? u"Demonstration-"_s : QString{};
    const QByteArray bytes = ID.toUtf8();
    const qsizetype longest = longestName - mark.size() - extension.toUtf8().size();
    QByteArray name = escapedName(bytes);
    if (name.size() > longest) name = shortened(std::move(name), bytes, longest);
    return mark + QString::fromUtf8(name) + extension;
}

QString exportPath(const QString& folder, const QString& ID, const QString& extension, bool isDemonstration) {
    return folder + u'/' + exportFileName(ID, extension, isDemonstration);
}

StoreResult writeExport(const QString& path, const QByteArray& content, Replace replace,
                        const QString& dataFile) {
    const QFileInfo file{path};
    if (isSameFile(file, QFileInfo{dataFile})) return notPlaced(StoreErrorCode::isDataFile, path);
    const bool isThere = file.exists() || file.isSymLink();
    if (isThere && replace == Replace::no) return notPlaced(StoreErrorCode::alreadyExists, path);
    return place(path, content);
}

StoreResult flushExports(const QString& folder) {
    removeDeadFiles(exportPrefix(folder));
    const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return systemRefused(StoreErrorCode::notFlushed, folder);
    // The first writes all files; FAT empties the disk's own cache only with the second.
    const bool isFlushed = uninterrupted([&] { return ::syncfs(handle); }) == 0
                           && (uninterrupted([&] { return ::fsync(handle); }) == 0 || errno == EINVAL);
    StoreResult result;
    if (!isFlushed) result = systemRefused(StoreErrorCode::notFlushed, folder);
    ::close(handle);
    return result;
}

} // namespace zel

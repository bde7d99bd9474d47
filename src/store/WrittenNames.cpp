#include "store/WrittenNames.h"

#include <QFile>

#include <filesystem>

namespace zel {

namespace {

QString likeName(const QString& path) {
    return path.normalized(QString::NormalizationForm_KC).toCaseFolded();
}

std::filesystem::path systemPath(const QString& path) { return QFile::encodeName(path).toStdString(); }

} // namespace

StoreResult WrittenNames::check(const QString& ID, const QString& path) const {
    const auto like = files.find(likeName(path));
    if (like == files.end() || like->second.ID == ID) return {};
    std::error_code isNone;
    if (!std::filesystem::equivalent(systemPath(like->second.path), systemPath(path), isNone)) return {};
    return tl::unexpected{StoreError{StoreErrorCode::sameFileName, path, like->second.ID}};
}

void WrittenNames::add(const QString& ID, const QString& path) {
    files.try_emplace(likeName(path), File{ID, path});
}

} // namespace zel

#pragma once
// What a day's work leaves behind, and who may read it.

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QStringList>

#include <algorithm>
#include <sys/stat.h>

namespace zel {

/// Keeps what is logged at the default level, from anybody, while it lives. One at a time.
class DefaultLog {
public:
    DefaultLog() {
        lines().clear();
        QLoggingCategory::setFilterRules({});
        previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& line) { lines() += line; });
    }
    ~DefaultLog() { qInstallMessageHandler(previous); }
    DefaultLog(const DefaultLog&) = delete;
    DefaultLog& operator=(const DefaultLog&) = delete;
    static QStringList& lines() { // a message handler takes no context
        static QStringList all;
        return all;
    }
    /// The lines that tell one of the texts.
    [[nodiscard]] static QStringList telling(const QStringList& texts) {
        QStringList found = lines();
        found.removeIf([&texts](const QString& line) {
            return std::ranges::none_of(texts, [&line](const QString& text) { return line.contains(text); });
        });
        return found;
    }

private:
    QtMessageHandler previous;
};

/// The files and folders below \p folder that tell one of the texts by their name or content.
inline QStringList traces(const QString& folder, const QStringList& texts) {
    QStringList found;
    QDirIterator all(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        QFile file(all.next());
        const QByteArray content =
            all.fileInfo().isFile() && file.open(QIODevice::ReadOnly) ? file.readAll() : "";
        if (std::ranges::any_of(texts, [&](const QString& text) {
                return file.fileName().mid(folder.size()).contains(text) || content.contains(text.toUtf8())
                       || content.contains(
                           QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2));
            }))
            found += file.fileName();
    }
    return found;
}

/// What lies below \p folder and gives its group or others anything, as "mode path".
inline QStringList openToOthers(const QString& folder) {
    QStringList found;
    QDirIterator all(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = all.next();
        struct stat status {};
        if (::lstat(QFile::encodeName(path).constData(), &status) == 0 && !S_ISLNK(status.st_mode)
            && (status.st_mode & 077U) != 0)
            found += QString::number(status.st_mode & 07777U, 8) + QLatin1Char(' ') + path.mid(folder.size());
    }
    return found;
}

/// What the user withholds (umask), for as long as it lives.
class Withheld {
public:
    explicit Withheld(mode_t mode) : before(::umask(mode)) {}
    ~Withheld() { ::umask(before); }
    Withheld(const Withheld&) = delete;
    Withheld& operator=(const Withheld&) = delete;

private:
    mode_t before;
};

} // namespace zel

#include "app/shell/HelpDocument.h"

#include "store/AtomicFile.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QUrl>

namespace zel {

using namespace Qt::StringLiterals;

bool openWithDesktop(const QString& path) { return QDesktopServices::openUrl(QUrl::fromLocalFile(path)); }

QString unpackHelp(const QString& resource, const QString& folder) {
    QFile packed(resource); // no file of the system's
    if (!packed.open(QIODevice::ReadOnly) || !QDir().mkpath(folder)) return {};
    const QByteArray manual = packed.readAll();
    QString path = QDir(folder).filePath(u"help.pdf"_s);
    if (readFile(path) == manual) return path; // a viewer may have it open
    return replaceFile(path, manual) ? path : QString();
}

} // namespace zel

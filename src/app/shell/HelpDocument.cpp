#include "app/shell/HelpDocument.h"

#include "store/AtomicFile.h"
#include "store/FileMode.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QUrl>

namespace zel {

using namespace Qt::StringLiterals;

bool hasPdfViewer() {
    QProcess query;
    query.start(u"xdg-mime"_s, {u"query"_s, u"default"_s, u"application/pdf"_s});
    if (!query.waitForStarted()) return true;
    const bool hasAnswered = query.waitForFinished(3000) && query.exitStatus() == QProcess::NormalExit;
    return !hasAnswered || !query.readAllStandardOutput().trimmed().isEmpty();
}

bool openWithDesktop(const QString& path) {
    return hasPdfViewer() && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

QString manualResource(const QString& name) {
    const QString inLanguage = name.arg(u'.' + qtTrId("languageTag"));
    return QFile::exists(inLanguage) ? inLanguage : name.arg(QString());
}

QString unpackHelp(const QString& resource, const QString& folder) {
    QFile packed(resource); // no file of the system's
    if (!packed.open(QIODevice::ReadOnly) || !makePrivateFolder(folder)) return {};
    const QByteArray manual = packed.readAll();
    QString path = QDir(folder).filePath(u"help.pdf"_s);
    if (readFile(path) == manual) return path; // a viewer may have it open
    return replaceFile(path, manual) ? path : QString();
}

} // namespace zel

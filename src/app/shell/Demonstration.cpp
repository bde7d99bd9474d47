#include "app/shell/Demonstration.h"

#include "app/shell/MainWindow.h"
#include "app/widgets/Style.h"
#include "store/FileMode.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QProcess>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QString demonstrationFolder(const QString& home) {
    const QString named = qEnvironmentVariable("XDG_STATE_HOME");
    const QString state = QDir::isAbsolutePath(named) ? named : home + "/.local/state"_L1;
    return QDir::cleanPath(state + "/zel/demonstration"_L1);
}

bool isSame(const QString& path, const QString& other) {
    const QString one = QFileInfo(path).canonicalFilePath();
    return !one.isEmpty() && one == QFileInfo(other).canonicalFilePath();
}

QString dataFileIn(const QString& home) {
    SystemClock clock;
    return DataFile({.home = home, .applicationFolder = {}, .templateFolder = {}}, clock).getZELXMLPath();
}

} // namespace

tl::expected<QString, QString> demonstrationHome(const QString& home) {
    const QString folder = demonstrationFolder(home);
    const QString own = dataFileIn(home), demonstrated = dataFileIn(folder);
    const QString place = QFileInfo(demonstrated).path();
    if (!makePrivateFolder(place)) // made now, so that a link on the way there shows where it leads
        return tl::unexpected(qtTrId("demonstrationNoFolder").arg(QDir::toNativeSeparators(folder)));
    if (isSame(place, QFileInfo(own).path()) || isSame(demonstrated, own))
        return tl::unexpected(qtTrId("demonstrationIsOwnData").arg(QDir::toNativeSeparators(folder)));
    return folder;
}

StorePaths demonstrationPaths(StorePaths paths) {
    paths.applicationFolder = paths.home; // an older version's file beside the program is the person's
    paths.isDemonstration = true;
    return paths;
}

QString startDemonstration(const QString& home) {
    const auto folder = demonstrationHome(home); // else nobody would hear why it ends
    if (!folder) return folder.error();
    const QStringList arguments{u"--demonstration"_s, "--language="_L1 + qtTrId("languageTag")};
    const bool isStarted = QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments);
    return isStarted ? QString() : qtTrId("demonstrationNotStarted");
}

void markAsDemonstration(MainWindow& window, const DataStore& store) {
    window.setWindowTitle(qtTrId("demonstrationTitle").arg(qtTrId("AP_Title")));
    auto* strip = new QLabel(qtTrId("demonstrationStrip"), &window);
    strip->setObjectName(u"demonstrationStrip"_s);
    strip->setAccessibleName(strip->text());
    strip->setToolTip(QDir::toNativeSeparators(store.getZELXMLPath()));
    strip->setAccessibleDescription(strip->toolTip());
    strip->setTextFormat(Qt::PlainText);
    strip->setWordWrap(true);
    strip->setContentsMargins(Style::edge, Style::tight, Style::edge, Style::tight);
    strip->setAutoFillBackground(true);
    strip->setBackgroundRole(QPalette::Highlight);
    Style::followHighlight(*strip);
    strip->setForegroundRole(QPalette::HighlightedText);
    window.showAtHead(*strip);
}

} // namespace zel

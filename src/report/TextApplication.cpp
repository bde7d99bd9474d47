#include "report/TextApplication.h"

#include <QGuiApplication>

#include <cstdio>

namespace zel {

namespace {

/// Started from a script, there may be no folder for a session's sockets, which painting does not need
/// either. Qt would complain about that where the user waits for words about the report.
void keepWarningsBack(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

std::unique_ptr<QCoreApplication> makeTextApplication(int& argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QtMessageHandler before = qInstallMessageHandler(keepWarningsBack);
    auto application = std::make_unique<QGuiApplication>(argc, argv);
    qInstallMessageHandler(before);
    return application;
}

} // namespace zel

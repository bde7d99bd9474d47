#include "store/SystemLog.h"

#include <QString>

#include <cstdio>
#include <syslog.h>
#include <unistd.h>

namespace zel {

namespace {

int priority(QtMsgType type) {
    switch (type) {
    case QtDebugMsg: return LOG_DEBUG;
    case QtInfoMsg: return LOG_INFO;
    case QtWarningMsg: return LOG_WARNING;
    case QtCriticalMsg: return LOG_ERR;
    case QtFatalMsg: return LOG_CRIT;
    }
    return LOG_NOTICE;
}

void writeToSystemLog(QtMsgType type, const QMessageLogContext& context, const QString& line) {
    syslog(priority(type), "%s", qFormatLogMessage(type, context, line).toUtf8().constData());
}

void writeToTerminal(QtMsgType type, const QMessageLogContext& context, const QString& line) {
    const QString text = qFormatLogMessage(type, context, line);
    std::fprintf(stderr, "%s\n", text.chopped(text.endsWith(u'\n') ? 1 : 0).toUtf8().constData());
}

} // namespace

void installSystemLog() {
    if (isatty(STDERR_FILENO) == 1) {
        qInstallMessageHandler(writeToTerminal);
        return;
    }
    openlog("zel", LOG_PID, LOG_USER);
    qInstallMessageHandler(writeToSystemLog);
}

} // namespace zel

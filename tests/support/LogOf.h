#pragma once

#include <QLoggingCategory>
#include <QStringList>

#include <string>

namespace zel {

/// What the program logs while \p act runs, joined by "|". A warning begins with "!", a debug line with "?".
template <class Act>
std::string logOf(const Act& act) {
    static QStringList lines; // a message handler takes no context
    lines.clear();
    QLoggingCategory::setFilterRules(QStringLiteral("zel.*.debug=true"));
    const auto previous =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& line) {
            if (!QLatin1StringView(context.category).startsWith(QLatin1StringView("zel."))) return;
            const char* mark = type == QtWarningMsg ? "!" : type == QtDebugMsg ? "?" : "";
            lines << QLatin1StringView(mark) + line;
        });
    act();
    qInstallMessageHandler(previous);
    QLoggingCategory::setFilterRules({});
    return lines.join(u'|').toStdString();
}

} // namespace zel

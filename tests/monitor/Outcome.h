#pragma once

#include "monitor/MonitorTransport.h"

#include <QStringList>

namespace zel {

/// How an exchange ended, apart from what it brought.
template <class T>
MonitorResult outcome(const MonitorExpected<T>& answer) {
    return answer ? MonitorResult::success : answer.error();
}

template <class Rep, class Period>
double seconds(std::chrono::duration<Rep, Period> duration) {
    return std::chrono::duration<double>(duration).count();
}

/// What is logged while \p act runs, joined by "|".
template <class Act>
std::string logOf(const Act& act) {
    static QStringList lines; // a message handler takes no context
    lines.clear();
    const auto previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& line) { lines << line; });
    act();
    qInstallMessageHandler(previous);
    return lines.join(u'|').toStdString();
}

} // namespace zel

#include "cli/ProgressLine.h"

#include <QCoreApplication>

#include <algorithm>

namespace zel::cli {

namespace {
constexpr int linesInAll = 5;
}

ProgressLine::~ProgressLine() {
    if (isLineOpen) around.err << '\n' << std::flush;
}

void ProgressLine::show(int total, int done) {
    if (done <= highest) return;
    highest = done;
    const QString text = qtTrId("CliProgress").arg(QString::number(done), QString::number(total));
    if (around.errIsTerminal) {
        put(text);
    } else if (done >= std::min(nextLine, total)) {
        printLine(around.err, text);
        nextLine = done + std::max(1, total / linesInAll);
    }
}

void ProgressLine::waiting(std::chrono::seconds left) {
    const bool isDue =
        around.errIsTerminal ? left != lastTold : !lastTold || left <= *lastTold / 2 || left > *lastTold;
    if (!isDue) return;
    lastTold = left;
    const QString text = qtTrId("CliWaiting").arg(left.count());
    if (around.errIsTerminal)
        put(text);
    else
        printLine(around.err, text);
}

void ProgressLine::put(const QString& text) {
    constexpr auto eraseLine = "\r\033[K";
    around.err << eraseLine << text.toStdString() << std::flush;
    isLineOpen = true;
}

} // namespace zel::cli

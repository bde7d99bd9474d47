#include "cli/ProgressLine.h"

#include <QCoreApplication>

#include <algorithm>

namespace zel::cli {

namespace {
constexpr int linesInAll = 5;
}

ProgressLine::~ProgressLine() {
    if (around.errIsTerminal && highest >= 0) around.err << '\n' << std::flush;
}

void ProgressLine::show(int total, int done) {
    if (done <= highest) return;
    highest = done;
    const QString text = qtTrId("CliProgress").arg(QString::number(done), QString::number(total));
    if (around.errIsTerminal) {
        around.err << '\r' << text.toStdString() << std::flush;
    } else if (done >= std::min(nextLine, total)) {
        printLine(around.err, text);
        nextLine = done + std::max(1, total / linesInAll);
    }
}

} // namespace zel::cli

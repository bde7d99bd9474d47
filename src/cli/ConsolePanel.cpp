#include "cli/ConsolePanel.h"

#include "cli/Surroundings.h"

namespace zel::cli {

using namespace Qt::StringLiterals;

void ConsolePanel::ShowMessage(const QString& text, const QString& title) {
    printLine(stream, title + u": "_s + text);
}

bool ConsolePanel::AskMessage(const QString& text, const QString& title) {
    ShowMessage(text, title);
    return false;
}

} // namespace zel::cli

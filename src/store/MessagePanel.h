#pragma once

#include <QString>

namespace zel {

/// How the program speaks to its user. The window shows modal panels, the command line writes to standard
/// error, tests script the answers. Main thread only.
class MessagePanel {
public:
    virtual ~MessagePanel() = default;
    /// Returns when the user has seen the message.
    virtual void ShowMessage(const QString& text, const QString& title) = 0;
    /// \return true for yes
    [[nodiscard]] virtual bool AskMessage(const QString& text, const QString& title) = 0;
    /// As AskMessage, where yes erases something: it must not be answered by Enter alone.
    [[nodiscard]] virtual bool AskToErase(const QString& text, const QString& title) {
        return AskMessage(text, title);
    }
};

} // namespace zel

#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace zel {

/// What becomes of something that is there.
enum class KeepAnswer { keep, erase, cancel };
/// What becomes of something that was typed.
enum class SaveAnswer { save, discard, cancel };

/// How the program speaks to its user. The window shows modal panels, the command line writes to standard
/// error, tests script the answers. Main thread only.
class MessagePanel {
public:
    virtual ~MessagePanel() = default;
    /// Returns when the user has seen the message.
    virtual void ShowMessage(const QString& text, const QString& title) = 0;
    /// For questions whose no changes nothing: it is what Esc and the close box answer.
    /// \return true for yes
    [[nodiscard]] virtual bool AskMessage(const QString& text, const QString& title) = 0;
    /// As AskMessage, where yes erases something: it must not be answered by Enter alone.
    [[nodiscard]] virtual bool AskToErase(const QString& text, const QString& title) {
        return AskMessage(text, title);
    }
    /// As AskMessage, where no loses what was typed: nothing but its buttons answers it.
    [[nodiscard]] virtual bool AskBeforeLosing(const QString& text, const QString& title) {
        return AskMessage(text, title);
    }
    /// Keep it, erase it, or leave all as it is, which is what Esc and the close box answer.
    [[nodiscard]] virtual KeepAnswer AskToKeep(const QString& text, const QString& title) {
        ShowMessage(text, title);
        return KeepAnswer::cancel;
    }
    /// Save it, do not, or go on with nothing, which is what Esc and the close box answer.
    [[nodiscard]] virtual SaveAnswer AskToSave(const QString& text, const QString& title) {
        return AskMessage(text, title) ? SaveAnswer::save : SaveAnswer::discard;
    }
    /// For what comes by itself: calls \p speak once the user is not typing, and what that shows or asks
    /// first takes no keys that were meant for something else. Dropped when \p context dies.
    virtual void interject(QObject* context, const std::function<void()>& speak) {
        if (context) speak();
    }
};

} // namespace zel

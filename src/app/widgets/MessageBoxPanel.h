#pragma once

#include "app/widgets/StillKeyboard.h"
#include "store/MessagePanel.h"

#include <QPointer>
#include <QWidget>

#include <chrono>
#include <span>

class QMessageBox;
class QPushButton;

namespace zel {

/// Messages and questions as modal boxes over the window.
class MessageBoxPanel final : public MessagePanel {
public:
    /// \param stillness of the keyboard before a box opens that nobody asked for
    explicit MessageBoxPanel(std::chrono::milliseconds stillness = std::chrono::seconds(2))
        : keyboard(stillness) {}
    void setWindow(QWidget* owner) { window = owner; }
    void ShowMessage(const QString& text, const QString& title) override;
    [[nodiscard]] bool AskMessage(const QString& text, const QString& title) override;
    [[nodiscard]] bool AskToErase(const QString& text, const QString& title) override;
    [[nodiscard]] bool AskBeforeLosing(const QString& text, const QString& title) override;
    [[nodiscard]] KeepAnswer AskToKeep(const QString& text, const QString& title) override;
    [[nodiscard]] SaveAnswer AskToSave(const QString& text, const QString& title) override;
    void interject(QObject* context, const std::function<void()>& speak) override;

private:
    enum class Kind { harmless, erasing, losing };
    [[nodiscard]] bool ask(const QString& text, const QString& title, Kind kind);
    struct Choice {
        QString name, text;
    };
    /// \return the index of the choice that was made; the last one's for Esc and the close box
    [[nodiscard]] std::size_t choose(const QString& text, const QString& title,
                                     std::span<const Choice> choices, std::size_t preset);
    void open(QMessageBox& box, QPushButton* preset);

    QPointer<QWidget> window;
    StillKeyboard keyboard;
    bool isUnasked = false; ///< the next box is one that nobody asked for
};

} // namespace zel

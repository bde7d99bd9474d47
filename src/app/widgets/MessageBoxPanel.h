#pragma once

#include "app/widgets/StillKeyboard.h"
#include "store/MessagePanel.h"

#include <QPointer>
#include <QWidget>

#include <chrono>

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
    void interject(QObject* context, const std::function<void()>& speak) override;

private:
    enum class Kind { harmless, erasing, losing };
    [[nodiscard]] bool ask(const QString& text, const QString& title, Kind kind);
    void open(QMessageBox& box, QPushButton* preset);

    QPointer<QWidget> window;
    StillKeyboard keyboard;
    bool isUnasked = false; ///< the next box is one that nobody asked for
};

} // namespace zel

#pragma once

#include "store/MessagePanel.h"

#include <QPointer>
#include <QWidget>

namespace zel {

/// Messages and questions as modal boxes over the window.
class MessageBoxPanel final : public MessagePanel {
public:
    void setWindow(QWidget* owner) { window = owner; }
    void ShowMessage(const QString& text, const QString& title) override;
    [[nodiscard]] bool AskMessage(const QString& text, const QString& title) override;
    [[nodiscard]] bool AskToErase(const QString& text, const QString& title) override;

private:
    enum class Preset { yes, no };
    [[nodiscard]] bool ask(const QString& text, const QString& title, Preset preset);

    QPointer<QWidget> window;
};

} // namespace zel

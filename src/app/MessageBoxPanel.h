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

private:
    QPointer<QWidget> window;
};

} // namespace zel

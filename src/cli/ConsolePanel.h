#pragma once

#include "store/MessagePanel.h"

#include <ostream>

namespace zel::cli {

/// Messages as lines on standard error. There is nobody to ask: every answer is no.
class ConsolePanel final : public MessagePanel {
public:
    explicit ConsolePanel(std::ostream& target) : stream(target) {}
    void ShowMessage(const QString& text, const QString& title) override;
    [[nodiscard]] bool AskMessage(const QString& text, const QString& title) override;

private:
    std::ostream& stream;
};

} // namespace zel::cli

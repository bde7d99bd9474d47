#pragma once

#include <QAccessible>
#include <QRect>

namespace zel {

/// A text that can be read and neither changed nor selected.
class SpokenText : public QAccessibleTextInterface {
public:
    void selection(int, int* begin, int* end) const override { *begin = *end = 0; }
    [[nodiscard]] int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    [[nodiscard]] int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    [[nodiscard]] QString text(int begin, int end) const override { return whole().mid(begin, end - begin); }
    [[nodiscard]] int characterCount() const override { return static_cast<int>(whole().size()); }
    [[nodiscard]] QRect characterRect(int) const override { return {}; }
    [[nodiscard]] int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int, int* begin, int* end) const override {
        *begin = 0;
        *end = characterCount();
        return {};
    }

protected:
    [[nodiscard]] virtual QString whole() const = 0;
};

} // namespace zel

#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace zel {

/// Places its items beside each other, in as many lines as its width takes; none is narrower than it asks for
/// unless it is wider than the whole line.
class FlowLayout final : public QLayout {
    Q_OBJECT
public:
    explicit FlowLayout(QWidget* parent = nullptr);
    /// Pixels between the items of a line, and between the lines.
    void setGaps(int besideItems, int betweenLines);

    void addItem(QLayoutItem* item) override; ///< takes it over
    [[nodiscard]] int count() const override { return static_cast<int>(items.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override; ///< of a single line
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    struct Line {
        std::vector<QLayoutItem*> items;
        int height = 0;
    };
    [[nodiscard]] std::vector<Line> lines(int width) const;
    [[nodiscard]] int place(const Line& line, const QRect& room) const;

    std::vector<std::unique_ptr<QLayoutItem>> items;
    int beside = 16;
    int between = 8;
};

} // namespace zel

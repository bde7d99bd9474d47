#include "app/widgets/FlowLayout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace zel {

namespace {

QSize sizeIn(const QLayoutItem& item, int room) {
    const QSize wanted = item.sizeHint();
    const int width = std::min(wanted.width(), room);
    return {width, item.hasHeightForWidth() ? item.heightForWidth(width) : wanted.height()};
}

} // namespace

FlowLayout::FlowLayout(QWidget* parent) : QLayout(parent) { setContentsMargins(0, 0, 0, 0); }

void FlowLayout::setGaps(int besideItems, int betweenLines) {
    beside = besideItems;
    between = betweenLines;
    invalidate();
}

void FlowLayout::addItem(QLayoutItem* item) {
    items.emplace_back(item);
    invalidate();
}

QLayoutItem* FlowLayout::itemAt(int index) const {
    const auto at = static_cast<std::size_t>(index);
    return index >= 0 && at < items.size() ? items[at].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    if (!itemAt(index)) return nullptr;
    QLayoutItem* taken = items[static_cast<std::size_t>(index)].release();
    items.erase(items.begin() + index);
    invalidate();
    return taken;
}

std::vector<FlowLayout::Line> FlowLayout::lines(int width) const {
    std::vector<Line> all;
    int left = 0;
    for (const auto& item : items) {
        if (item->isEmpty()) continue;
        const QSize size = sizeIn(*item, width);
        if (all.empty() || left + beside + size.width() > width) {
            all.emplace_back();
            left = -beside;
        }
        left += beside + size.width();
        all.back().items.push_back(item.get());
        all.back().height = std::max(all.back().height, size.height());
    }
    return all;
}

int FlowLayout::heightForWidth(int width) const {
    int height = 0;
    for (const Line& line : lines(width))
        height += line.height + (height > 0 ? between : 0);
    return height;
}

QSize FlowLayout::sizeHint() const {
    QSize size(0, 0);
    for (const auto& item : items) {
        if (item->isEmpty()) continue;
        const QSize wanted = item->sizeHint();
        size.rwidth() += wanted.width() + (size.width() > 0 ? beside : 0);
        size.setHeight(std::max(size.height(), wanted.height()));
    }
    return size;
}

QSize FlowLayout::minimumSize() const {
    QSize size(0, 0);
    for (const auto& item : items)
        if (!item->isEmpty()) size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    int top = rect.top();
    for (const Line& line : lines(rect.width()))
        top += place(line, {rect.left(), top, rect.width(), line.height}) + between;
}

int FlowLayout::place(const Line& line, const QRect& room) const {
    const Qt::LayoutDirection direction =
        parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    int left = room.left();
    for (QLayoutItem* item : line.items) {
        const QSize size = sizeIn(*item, room.width());
        const QRect own(QPoint(left, room.top() + (line.height - size.height()) / 2), size);
        item->setGeometry(QStyle::visualRect(direction, room, own));
        left += size.width() + beside;
    }
    return line.height;
}

} // namespace zel

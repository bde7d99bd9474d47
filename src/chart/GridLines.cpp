#include "chart/GridLines.h"

#include <QImage>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace zel {

namespace {

bool isAlike(const StraightLine& line, const StraightLine& first) {
    return line.from.x == line.to.x && line.from.y == first.from.y && line.to.y == first.to.y
           && line.width == 1 && line.color == first.color && line.color.alpha() == 255;
}

} // namespace

std::size_t uprightLines(std::span<const PictureItem> items) {
    const auto* first = std::get_if<StraightLine>(&items.front());
    if (!first) return 0;
    const auto end = std::ranges::find_if_not(items, [first](const PictureItem& item) {
        const auto* line = std::get_if<StraightLine>(&item);
        return line && isAlike(*line, *first);
    });
    return static_cast<std::size_t>(end - items.begin());
}

void paintUprightLines(PictureSurface& surface, std::span<const PictureItem> lines) {
    const auto& first = std::get<StraightLine>(lines.front());
    const QRect seen = surface.rect(surface.sight()).toRect();
    const auto [low, high] = std::minmax(first.from.y, first.to.y);
    const QRect area =
        QRectF(QPointF(seen.left(), surface.y(high)), QPointF(seen.left() + seen.width(), surface.y(low)))
            .intersected(seen)
            .toRect();
    if (area.isEmpty()) return;
    // A few rows are drawn one below the other.
    QImage rows(area.width(), std::min(area.height(), 8), QImage::Format_ARGB32_Premultiplied);
    const auto bytes = static_cast<std::size_t>(rows.bytesPerLine());
    auto* const pixels = reinterpret_cast<QRgb*>(rows.bits());
    std::fill_n(pixels, rows.width(), 0); // the other rows are copies
    for (const PictureItem& item : lines) {
        const auto& line = std::get<StraightLine>(item);
        const double left = surface.x(std::floor(line.from.x)) - area.left();
        const double right = std::min<double>(left + surface.length(1), area.width());
        for (int x = static_cast<int>(std::max(left, 0.0)); x < right; ++x)
            pixels[x] = line.color.rgba();
    }
    for (int row = 1; row < rows.height(); ++row)
        std::memcpy(rows.scanLine(row), pixels, bytes);
    for (int top = area.top(); top <= area.bottom(); top += rows.height()) {
        const int height = std::min(rows.height(), area.bottom() + 1 - top);
        surface.painter.drawImage(QPoint(area.left(), top), rows, QRect(0, 0, area.width(), height));
    }
}

} // namespace zel

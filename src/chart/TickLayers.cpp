#include "chart/TickLayers.h"

#include "chart/DensePicture.h"

#include <QImage>

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace zel {

namespace {

QRectF strokeRect(const PictureSurface& surface, const Ticks::Tick& stroke) {
    const double top = surface.y(stroke.y2);
    return {surface.x(stroke.x), top, surface.length(1), surface.y(stroke.y1) - top};
}

/// Where a stroke begins (+1) or has ended (-1).
struct Change {
    int column;
    int by;
    std::ptrdiff_t next; ///< of the same row; -1: none
};

/// The changes of a part of the device, row by row.
class Changes {
public:
    Changes(const QRect& covered, std::span<const QRect> strokes)
        : part(covered), heads(static_cast<std::size_t>(part.height()) + 1, -1) {
        all.reserve(2 * strokes.size());
        for (const QRect& whole : strokes) {
            const QRect stroke = whole.intersected(part).translated(-part.topLeft());
            for (int x = stroke.left(); x <= stroke.right() && stroke.height() > 0; ++x) {
                add(stroke.top(), x, 1);
                add(stroke.bottom() + 1, x, -1);
            }
        }
    }

    template <class Apply>
    void forEach(int row, Apply apply) const {
        for (auto at = heads[static_cast<std::size_t>(row)]; at >= 0;) {
            const Change& change = all[static_cast<std::size_t>(at)];
            apply(change);
            at = change.next;
        }
    }

private:
    void add(int row, int column, int by) {
        std::ptrdiff_t& head = heads[static_cast<std::size_t>(row)];
        all.push_back({column, by, head});
        head = std::ssize(all) - 1;
    }

    QRect part;
    std::vector<std::ptrdiff_t> heads; ///< of each row
    std::vector<Change> all;
};

/// The pixels that are blended over once more than those of the layer before, a band of rows at a time.
class Layer {
public:
    static constexpr int bandHeight = 8; ///< of 32, most would be cleared for a few rows

    explicit Layer(int width)
        : row(static_cast<std::size_t>(width)), band(width, bandHeight, QImage::Format_ARGB32_Premultiplied) {
    }

    void set(int column, QRgb color) {
        row[static_cast<std::size_t>(column)] = color;
        taken += color == 0 ? -1 : 1;
    }

    void endRow(int rowInBand) {
        if (taken == 0 && first > rowInBand) return;
        first = std::min(first, rowInBand);
        last = rowInBand;
        std::ranges::copy(row, reinterpret_cast<QRgb*>(band.scanLine(rowInBand)));
    }

    void endBand(QPainter& painter, QPoint topLeft) {
        if (first == bandHeight) return;
        const QRect rows(0, first, band.width(), last + 1 - first);
        painter.drawImage(topLeft + rows.topLeft(), band, rows);
        first = bandHeight;
    }

private:
    std::vector<QRgb> row;
    int taken = 0; ///< pixels of the row
    QImage band;
    int first = bandHeight; ///< row of the band that holds anything
    int last = 0;
};

/// The part of the device that the strokes cover, as far as it can be seen.
QRect coveredPart(const PictureSurface& surface, std::span<const Ticks::Tick> strokes) {
    const auto [left, right] = std::ranges::minmax(strokes, {}, &Ticks::Tick::x);
    const double low = std::ranges::min(strokes, {}, &Ticks::Tick::y1).y1;
    const double high = std::ranges::max(strokes, {}, &Ticks::Tick::y2).y2;
    const QRectF seen = surface.rect(surface.sight());
    return surface.rect({left.x, low, right.x - left.x, high - low})
        .adjusted(0, 0, surface.length(1), 0)
        .intersected(seen)
        .toAlignedRect();
}

/// One image for the first stroke over each pixel, one for the second and so on: Qt blends images at once,
/// but spreads each narrow rectangle over its threads. A few rows at a time stay near the processor.
void paintLayers(PictureSurface& surface, std::span<const Ticks::Tick> strokes, const QColor& color) {
    const QRect part = coveredPart(surface, strokes);
    if (part.isEmpty()) return;
    std::vector<QRect> onDevice;
    onDevice.reserve(strokes.size());
    for (const Ticks::Tick& stroke : strokes)
        onDevice.push_back(strokeRect(surface, stroke).toRect());
    const Changes changes(part, onDevice);
    const QRgb blended = qPremultiply(color.rgba());
    std::vector<std::size_t> counts(static_cast<std::size_t>(part.width())); // over each pixel of the row
    std::vector<Layer> layers;
    for (int row = 0; row < part.height(); ++row) {
        changes.forEach(row, [&](const Change& change) {
            std::size_t& count = counts[static_cast<std::size_t>(change.column)];
            if (change.by < 0) return layers[--count].set(change.column, 0);
            if (count == layers.size()) layers.emplace_back(part.width());
            layers[count++].set(change.column, blended);
        });
        const int rowInBand = row % Layer::bandHeight;
        const bool isLast = rowInBand + 1 == Layer::bandHeight || row + 1 == part.height();
        for (Layer& layer : layers) {
            layer.endRow(rowInBand);
            if (isLast) layer.endBand(surface.painter, part.topLeft() + QPoint(0, row - rowInBand));
        }
    }
}

} // namespace

void paintTicks(PictureSurface& surface, const Ticks& item) {
    const int enough = enoughStrokes(item.color.alphaF());
    const std::vector<Ticks::Tick> strokes = stackedTicks(item.ticks, surface.sight(), enough);
    if (strokes.empty()) return;
    if (surface.hasPixels()) return paintLayers(surface, strokes, item.color);
    for (const Ticks::Tick& stroke : strokes)
        surface.painter.fillRect(strokeRect(surface, stroke), item.color);
}

} // namespace zel

#include "chart/MarkLayer.h"

#include "chart/DensePicture.h"

#include <QImage>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

namespace zel {

namespace {

constexpr double farOut = 1e8; ///< beyond any screen, within an int

/// The squares of one mark on the device: the outer 5, the inner 3 pixels of the picture wide.
template <class Length>
struct MarkShape {
    MarkShape(const PictureSurface& surface, const PointMarks& marks)
        : edge(static_cast<Length>(surface.length(1))), outer(static_cast<Length>(surface.length(5))),
          inner(outer - 2 * edge), bordered(marks.bordered), color(marks.color), border(marks.border) {}
    Length edge;
    Length outer;
    Length inner;
    bool bordered;
    QColor color;
    QColor border;
};

QPointF topLeft(const PictureSurface& surface, Point point) {
    return {surface.x(point.x - 2), surface.y(point.y + 3)};
}

/// Squares of one colour cover each other in any order, so that the painter gets them all at once.
void paintSquares(PictureSurface& surface, std::span<const Point> points, const MarkShape<double>& shape) {
    QList<QRectF> squares;
    squares.reserve(std::ssize(points));
    for (const Point point : points)
        squares.emplace_back(topLeft(surface, point) + QPointF(shape.edge, shape.edge),
                             QSizeF(shape.inner, shape.inner));
    surface.painter.setPen(Qt::NoPen);
    surface.painter.setBrush(shape.color);
    surface.painter.drawRects(squares);
}

/// A border and what it holds as one small image: half of the calls.
void paintBordered(PictureSurface& surface, std::span<const Point> points, const MarkShape<int>& shape) {
    QImage mark(shape.outer, shape.outer, QImage::Format_RGB32);
    mark.fill(shape.border);
    for (int y = shape.edge; y < shape.edge + shape.inner; ++y)
        for (int x = shape.edge; x < shape.edge + shape.inner; ++x)
            mark.setPixel(x, y, shape.color.rgb());
    for (const Point point : points)
        surface.painter.drawImage(topLeft(surface, point), mark);
}

void paintEach(PictureSurface& surface, std::span<const Point> points, const MarkShape<double>& shape) {
    const QSizeF outer(shape.outer, shape.outer);
    const QSizeF inner(shape.inner, shape.inner);
    for (const Point point : points) {
        const QPointF corner = topLeft(surface, point);
        if (shape.bordered) surface.painter.fillRect(QRectF(corner, outer), shape.border);
        surface.painter.fillRect(QRectF(corner + QPointF(shape.edge, shape.edge), inner), shape.color);
    }
}

/// The pixels of an image.
struct Pixels {
    QRgb* first;
    std::ptrdiff_t stride;
    int width;
};

template <std::size_t count, class Value>
void copy(Value* to, const Value* values) {
    std::memcpy(to, values, count * sizeof(Value));
}

/// Copies a few values; the usual numbers of them by an instruction or two, as a call takes most of the time
/// otherwise.
template <class Value>
void stamp(Value* to, const Value* values, int count) {
    switch (count) {
    case 5: copy<5>(to, values); break;
    case 3: copy<3>(to, values); break;
    default: std::copy_n(values, std::max(count, 0), to);
    }
}

/// In which row of a part of the device the marks of each value begin. There are few values and many marks:
/// each is worked out once.
class MarkRows {
public:
    MarkRows(const PictureSurface& surface, const QRect& part, int shift)
        : lowest(std::floor(surface.sight().y) - beyond),
          rows(static_cast<std::size_t>(
              std::clamp(std::ceil(surface.sight().height) + 2 * beyond, 0.0, 1e6))) {
        for (std::size_t at = 0; at < rows.size(); ++at) {
            const double y = surface.y(lowest + static_cast<double>(at) + 3); // the top of the outer square
            rows[at] = static_cast<int>(std::clamp(y, -farOut, farOut)) + shift - part.top();
        }
    }
    /// \p y a whole number. \return none for a mark that is out of sight
    [[nodiscard]] const int* find(double y) const {
        const double at = y - lowest;
        return at >= 0 && at < static_cast<double>(rows.size()) ? &rows[static_cast<std::size_t>(at)]
                                                                : nullptr;
    }

private:
    /// A mark that begins so far above still reaches into sight, at a fifth of the size, too.
    static constexpr double beyond = 8;
    double lowest;
    std::vector<int> rows;
};

/// The marks of one column, as they lie on one another: what each pixel row of it shows.
class MarkColumn {
public:
    MarkColumn(const PictureSurface& surface, const QRect& covered, const MarkShape<int>& shape)
        : shift(shape.bordered ? 0 : shape.edge), beginOf(surface, covered, shift),
          mark(size(shape), Row::border), rows(static_cast<std::size_t>(covered.height())),
          borderRow(size(shape), shape.border.rgba()), innerRow(borderRow) {
        const auto edge = static_cast<std::ptrdiff_t>(shape.edge - shift);
        std::fill_n(mark.begin() + edge, shape.inner, Row::inner);
        std::fill_n(innerRow.begin() + edge, shape.inner, shape.color.rgba());
    }

    /// Marks on one pixel column. What the loop needs stands in variables of its own: behind each stamp, the
    /// compiler would read the members again.
    void add(std::span<const Point> points) {
        Row* const to = rows.data();
        const Row* const values = mark.data();
        const int size = static_cast<int>(mark.size()), end = static_cast<int>(rows.size());
        int low = first, high = last;
        for (const Point point : points) {
            const int* const begin = beginOf.find(point.y);
            if (!begin) continue;
            const int from = std::max(*begin, 0), until = std::min(*begin + size, end);
            if (from >= until) continue;
            stamp(to + from, values + (from - *begin), until - from);
            low = std::min(low, from);
            high = std::max(high, until);
        }
        first = low;
        last = high;
    }

    /// Draws the rows into an image from its column \p x on, and begins anew.
    void flush(const Pixels& image, int x) {
        const int begin = x + shift;
        const int from = std::max(begin, 0);
        const int to = std::min(begin + static_cast<int>(mark.size()), image.width);
        for (int y = first; y < last; ++y) {
            Row& row = rows[static_cast<std::size_t>(y)];
            if (row == Row::clear) continue;
            const std::vector<QRgb>& colors = row == Row::inner ? innerRow : borderRow;
            stamp(image.first + y * image.stride + from, colors.data() + (from - begin), to - from);
            row = Row::clear;
        }
        first = static_cast<int>(rows.size());
        last = 0;
    }

private:
    enum class Row : std::uint8_t { clear, border, inner };

    static std::size_t size(const MarkShape<int>& shape) {
        return static_cast<std::size_t>(shape.bordered ? shape.outer : shape.inner);
    }

    int shift; ///< from the outer square to what is drawn
    MarkRows beginOf;
    std::vector<Row> mark; ///< the rows of one mark
    std::vector<Row> rows;
    std::vector<QRgb> borderRow;
    std::vector<QRgb> innerRow;
    int first = static_cast<int>(rows.size());
    int last = 0;
};

/// Marks of one column lie on one another, and later columns on earlier ones.
void paintTogether(PictureSurface& surface, std::span<const Point> points, const MarkShape<int>& shape,
                   const QRect& part) {
    QImage image(part.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const Pixels pixels{reinterpret_cast<QRgb*>(image.bits()), image.bytesPerLine() / 4, image.width()};
    MarkColumn column(surface, part, shape);
    for (std::size_t begin = 0, end = 0; begin < points.size(); begin = end) {
        end = begin + 1; // also for what equals nothing
        while (end < points.size() && points[end].x == points[begin].x)
            ++end;
        column.add(points.subspan(begin, end - begin));
        const double x = topLeft(surface, points[begin]).x();
        column.flush(pixels, static_cast<int>(std::clamp(x, -farOut, farOut)) - part.left());
    }
    surface.painter.drawImage(part.topLeft(), image);
}

struct Bounds {
    Point low, high;

    void add(Point point) {
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
    }
};

/// Every other point by itself: a comparison that waits for the one before takes most of the time.
Bounds boundsOf(std::span<const Point> points) {
    Bounds even{points.front(), points.front()}, odd{points.back(), points.back()};
    for (std::size_t at = 0; at + 1 < points.size(); at += 2) {
        even.add(points[at]);
        odd.add(points[at + 1]);
    }
    even.add(odd.low);
    even.add(odd.high);
    return even;
}

/// The part of the device that the marks cover, as far as it can be seen.
QRect coveredPart(const PictureSurface& surface, std::span<const Point> points) {
    const auto [low, high] = boundsOf(points);
    const Rect marks{low.x - 2, low.y - 2, high.x - low.x + 5, high.y - low.y + 5};
    const QRectF seen = surface.rect(surface.sight());
    return surface.rect(marks).adjusted(0, 0, 1, 1).intersected(seen).toAlignedRect();
}

} // namespace

void paintMarks(PictureSurface& surface, const PointMarks& marks) {
    const std::vector<Point>& points = marks.points;
    if (points.empty()) return;
    // An image costs by its size, a square painted by itself about as much as that many pixels.
    constexpr double pixelsPerMark = 60;
    const QRect part = coveredPart(surface, points);
    const double area = static_cast<double>(part.width()) * part.height();
    if (surface.hasPixels() && area < pixelsPerMark * static_cast<double>(points.size()))
        return paintTogether(surface, points, MarkShape<int>(surface, marks), part);
    const std::vector<Point> visible = visibleMarks(points, surface.sight());
    const MarkShape<double> shape(surface, marks);
    if (!surface.hasPixels() || shape.inner <= 0) return paintEach(surface, visible, shape);
    if (marks.bordered) return paintBordered(surface, visible, MarkShape<int>(surface, marks));
    paintSquares(surface, visible, shape);
}

} // namespace zel

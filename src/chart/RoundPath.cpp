#include "chart/RoundPath.h"

#include <algorithm>
#include <cmath>

namespace zel {

namespace {

/// How far a cubic curve's control points lie towards the corner, to draw a quarter of a circle.
constexpr double quarterCircle = 0.5522847498;

/// An arc that touches the lines from \p before to \p corner and from there to \p after.
void arcThrough(QPainterPath& path, QPointF before, QPointF corner, QPointF after, double radius) {
    const auto towards = [corner, radius](QPointF point) {
        const QPointF way = point - corner;
        const double length = std::hypot(way.x(), way.y());
        return length > 0 ? corner + way * (radius / length) : corner;
    };
    const QPointF from = towards(before);
    const QPointF to = towards(after);
    path.lineTo(from);
    path.cubicTo(from + (corner - from) * quarterCircle, to + (corner - to) * quarterCircle, to);
}

} // namespace

QPainterPath getRoundPath(const Rect& rect, int radius) {
    const double width = std::trunc(rect.width);
    const double height = std::trunc(rect.height);
    const double r = std::min({static_cast<double>(radius), std::abs(width) / 2, std::abs(height) / 2});
    const double across = std::copysign(2 * r, width);
    const double up = std::copysign(2 * r, height);
    const QPointF corner(rect.x, rect.y);
    const auto at = [&](double x, double y) { return corner + QPointF(x, y); };

    // The straight edges end twice the radius short of each corner, the arcs have the radius itself.
    QPainterPath path(at(0, up));
    path.lineTo(at(0, height - up));
    arcThrough(path, at(0, height - up), at(0, height), at(across, height), r);
    path.lineTo(at(width - across, height));
    arcThrough(path, at(width - across, height), at(width, height), at(width, height - up), r);
    path.lineTo(at(width, up));
    arcThrough(path, at(width, up), at(width, 0), at(width - across, 0), r);
    path.lineTo(at(across, 0));
    arcThrough(path, at(across, 0), at(0, 0), at(0, up), r);
    path.closeSubpath();
    return path;
}

} // namespace zel

#pragma once

namespace zel {

// Pictures are computed with the origin at the bottom left and y upwards. Units are points of 1/72 inch on
// paper and pixels at 100 % scale on a screen.

struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

struct Size {
    double width = 0;
    double height = 0;

    bool operator==(const Size&) const = default;
};

/// Origin is the bottom left corner. Width and height may be negative while an edge is dragged past another.
struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Rect&) const = default;
    [[nodiscard]] double right() const { return x + width; }
    [[nodiscard]] double top() const { return y + height; }
    [[nodiscard]] bool contains(Point point) const {
        return x <= point.x && point.x < right() && y <= point.y && point.y < top();
    }
    [[nodiscard]] Rect inset(double by) const { return {x + by, y + by, width - 2 * by, height - 2 * by}; }
};

} // namespace zel

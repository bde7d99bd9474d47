#pragma once

#include "chart/Geometry.h"
#include "chart/StyleTable.h"

#include <QString>

#include <variant>
#include <vector>

namespace zel {

// What is drawn, as plain numbers: computed without a painter, painted by paintPicture() on a screen, into an
// image or on paper. Items are painted in order.

struct FillRect {
    Rect rect;
    QColor color; ///< translucent colours blend
};

/// The rounded box of the charts: its straight edges stop twice the radius short of each corner.
struct RoundRect {
    Rect rect;
    int radius = 0;
    QColor color;
    double strokeWidth = 0; ///< 0: filled
};

struct StraightLine {
    Point from;
    Point to;
    double width = 1;
    QColor color;
};

struct Circle {
    Point centre;
    double diameter = 10;
    bool filled = true;
    QColor color{Qt::black};
};

/// One line of text in the box (origin, its own size).
struct TextLine {
    QString text;
    Point origin; ///< bottom left of the text's box
    TextAttribute attribute;
};

/// Joined points; lines of width 1, square on the pixel.
struct PolyLine {
    std::vector<Point> points; ///< whole numbers
    QColor color{Qt::black};   ///< opaque
};

/// Joined points as a smooth line in any colour, broken into dashes where there are any.
struct Curve {
    std::vector<Point> points;
    double width = 1;
    QColor color;
    std::vector<double>
        dashes; ///< lengths of a dash, of the gap behind it, and so on, 0.5 or more; empty: none
};

/// A filled polygon.
struct Area {
    std::vector<Point> outline;
    QColor color; ///< translucent colours blend
};

/// The marks of readings, painted in order: a 5 x 5 square around the point as a border, and on it a 3 x 3
/// one.
struct PointMarks {
    std::vector<Point> points; ///< whole numbers
    bool bordered = true;      ///< false: the inner square only
    QColor color{Qt::black};   ///< opaque, as the border's
    QColor border = fixColor(gcGrayBorderForDotcolor);
};

/// Upright lines of width 1 in a translucent colour, each blended over what is there.
struct Ticks {
    struct Tick {
        double x = 0;
        double y1 = 0;
        double y2 = 0;
    };
    std::vector<Tick> ticks; ///< whole numbers
    QColor color;
};

/// An image of the resources, as a scalable drawing.
struct ImageItem {
    QString name; ///< without folder and suffix, such as "printlogo"
    Rect rect;
    bool isGrey = false; ///< its colours are drawn as greys
};

/// What follows is painted inside this area only, until the matching EndClip.
struct BeginClip {
    Rect rect;
    int radius = 0;
};
struct EndClip {};

using PictureItem = std::variant<FillRect, RoundRect, StraightLine, Circle, TextLine, PolyLine, Curve, Area,
                                 PointMarks, Ticks, ImageItem, BeginClip, EndClip>;
using Picture = std::vector<PictureItem>;

} // namespace zel

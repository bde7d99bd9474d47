#pragma once
// Many readings fall on one pixel column. What is the same, pixel for pixel, with fewer strokes.

#include "chart/Picture.h"

#include <span>
#include <vector>

namespace zel {

struct Segment {
    Point from;
    Point to;

    bool operator==(const Segment&) const = default;
};

/// The strokes of a joined line: all that stand in one column are one upright stroke. Strokes out of sight
/// are left out, and far ends are brought near, so that any reading can be drawn. Where \p eachUnitIsAPixel,
/// so are those that lie under upright strokes: of thousands of readings, nearly all between two columns.
[[nodiscard]] std::vector<Segment> joinedStrokes(std::span<const Point> points, const Rect& sight,
                                                 bool eachUnitIsAPixel);

/// The marks that show at least in part: not those outside, nor those under a later one at the same place.
[[nodiscard]] std::vector<Point> visibleMarks(std::span<const Point> points, const Rect& sight);

/// The ticks as few upright strokes that blend as often over each pixel: in each column one after the other.
/// More strokes than \p enough over one pixel are left out.
[[nodiscard]] std::vector<Ticks::Tick> stackedTicks(std::span<const Ticks::Tick> ticks, const Rect& sight,
                                                    int enough);

/// After how many strokes of a colour with that opacity (0 to 1) another no longer changes any pixel.
[[nodiscard]] int enoughStrokes(double opacity);

} // namespace zel

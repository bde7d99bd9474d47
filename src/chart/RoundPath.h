#pragma once

#include "chart/Geometry.h"

#include <QPainterPath>

namespace zel {

/// The outline of a box with rounded corners, in the coordinates of the rectangle: from its origin on, as
/// wide and high as the whole part of its size. A box too small for the radius gets a smaller one.
[[nodiscard]] QPainterPath getRoundPath(const Rect& rect, int radius);

} // namespace zel

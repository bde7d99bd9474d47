#pragma once

#include "chart/DensePicture.h"

namespace zel {

/// The straight pieces that a curve is drawn of, from its first point on. Dashes go on around corners.
[[nodiscard]] std::vector<Segment> curvePieces(const Curve& curve);

} // namespace zel

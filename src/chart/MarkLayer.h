#pragma once

#include "chart/Picture.h"
#include "chart/PictureSurface.h"

namespace zel {

/// Paints the marks of readings, each over those before it: many of them in one image of their own.
void paintMarks(PictureSurface& surface, const PointMarks& marks);

} // namespace zel

#pragma once

#include "chart/Picture.h"
#include "chart/PictureSurface.h"

namespace zel {

/// Paints upright translucent lines, each blended over what is there.
void paintTicks(PictureSurface& surface, const Ticks& item);

} // namespace zel

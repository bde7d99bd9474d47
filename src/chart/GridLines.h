#pragma once

#include "chart/Picture.h"
#include "chart/PictureSurface.h"

#include <span>

namespace zel {

/// How many upright lines of one look and height stand side by side from the first item on.
[[nodiscard]] std::size_t uprightLines(std::span<const PictureItem> items);
/// Paints that many on a surface that has pixels: all at once, row by row.
void paintUprightLines(PictureSurface& surface, std::span<const PictureItem> lines);

} // namespace zel

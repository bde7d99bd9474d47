#pragma once

#include "chart/Picture.h"

namespace zel {

/// As light as the colour, and as opaque.
[[nodiscard]] QColor greyOf(const QColor& color);
/// The picture as a printer without colours has it: each colour, also of images, becomes its grey.
[[nodiscard]] Picture inGreys(Picture picture);

} // namespace zel

#pragma once

#include "chart/Picture.h"

namespace zel {

/// The colours of pictures on a screen whose background is not white: what is white on paper becomes \p
/// paper, what is black becomes \p ink, and all others keep their hue between the two.
struct ScreenColours {
    QColor paper{Qt::white};
    QColor ink{Qt::black};
    bool isStrong = false; ///< lines but the grid's, too, stand out as texts do

    bool operator==(const ScreenColours&) const = default;
    /// As on paper: nothing is changed.
    [[nodiscard]] bool isPlain() const { return *this == ScreenColours{}; }
};

/// How well a text of one colour can be read on the other, 1 to 21, as accessibility guidelines count it.
/// Both opaque.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);
/// Contrast that texts have at least.
inline constexpr double readable = 4.5;

[[nodiscard]] QColor shade(const QColor& color, const ScreenColours& colours);
/// The colour, moved towards the ink until it has that contrast with the paper and what lies on it beside
/// charts.
[[nodiscard]] QColor readableShade(const QColor& color, const ScreenColours& colours);
[[nodiscard]] Picture inColours(Picture picture, const ScreenColours& colours);

} // namespace zel

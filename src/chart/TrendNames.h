#pragma once
// The names at the ends of lines, in a column of their own.

#include "chart/Picture.h"

#include <span>

namespace zel {

struct LineName {
    QString text;
    double y = 0; ///< where its line ends
    QColor color;
};

/// That all of the names need, one above the other.
[[nodiscard]] Size lineNamesSize(std::span<const LineName> names);

/// From the left of \p column, each as near to its line's end as the others leave it, in the order of the
/// ends. None overlaps another or leaves the column where that is of lineNamesSize() at least.
[[nodiscard]] std::vector<TextLine> placeLineNames(std::vector<LineName> names, const Rect& column);

} // namespace zel

#pragma once

#include "chart/Geometry.h"

namespace zel {

/// Distances from the paper's edges, in points.
struct PageMargins {
    double top = 32;
    double bottom = 32;
    double left = 48;
    double right = 48;
};

inline constexpr double fFooterHeight = 100, fTitleHeight = 45, fStatTable = 120;

/// Where the parts of a page lie, in points from the paper's bottom left corner.
struct PageGeometry {
    Size pageSize;    ///< the paper
    Rect totalRect;   ///< the paper less its margins
    Rect footerRect;  ///< at its bottom
    Rect bodyRect;    ///< between footer and title band
    Rect titleRect;   ///< at its top
    Rect drawingRect; ///< the body less the patient title at its head
};

[[nodiscard]] PageGeometry pageGeometry(Size paper, double patientTitleHeight,
                                        const PageMargins& margins = {});

/// The whole of \p content as large and as near to the middle of \p bounds as it fits.
[[nodiscard]] Rect mapRectToRect(Size content, const Rect& bounds);

} // namespace zel

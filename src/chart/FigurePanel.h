#pragma once
// What the pictures of the figures have in common.

#include "chart/Picture.h"
#include "chart/StyleTable.h"

namespace zel {

enum class Axis { vertical, horizontal };

/// A scale beside or below a panel, divided evenly; the last two divisions have no number.
struct PanelScale {
    Axis axis;
    int divide = 1;   ///< divisions
    int unitStep = 0; ///< value of one division
    double length = 0;
};
[[nodiscard]] inline double stepLength(const PanelScale& scale) { return scale.length / scale.divide; }

/// Lines of the background's colour at each division but the last.
void drawGrid(Picture& picture, const Rect& panel, const PanelScale& scale);
/// The numbers of the divisions in the margin outside the panel, as many as there is room for.
void drawNumbers(Picture& picture, const Rect& panel, const PanelScale& scale);

/// The unit of a vertical scale, in the margin beside the panel and clear of panel and edge.
void drawUnit(Picture& picture, const Rect& panel, const QString& unit, double y, bool hangs);

inline constexpr double leftMargin = 30;   ///< holds the numbers of a vertical scale
inline constexpr double bottomMargin = 17; ///< holds those of a horizontal one
inline constexpr double numberGap = 4;     ///< between the numbers and the panel they belong to
inline constexpr int valueStep = 20;       ///< of a division: two classes of a histogram
inline constexpr double edgeGap = 2;       ///< between what ends a scale and the picture's edge

} // namespace zel

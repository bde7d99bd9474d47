#pragma once

#include "chart/Picture.h"

namespace zel {

/// The size of a text in the units of the picture, the same for every surface.
[[nodiscard]] Size textSize(const QString& text, const TextAttribute& attribute);

enum class XPos { left = 0, centre = 1, right = 2 }; ///< which part of the text stands at x
enum class YPos { bottom = 0, centre = 1, top = 3 };
/// One line of text, placed by x and y.
void textOut(Picture& picture, const QString& text, Point at, const TextAttribute& attribute,
             XPos x = XPos::left, YPos y = YPos::bottom);

/// Number of characters of the line that begins at \p from; -1 at the end of the text.
[[nodiscard]] int getLineIndex(const QString& text, int from, double width, const TextAttribute& attribute);
/// Index at which to break the text between two indexes, or -1.
[[nodiscard]] int adjustWordBreak(const QString& text, int from, int to);

} // namespace zel

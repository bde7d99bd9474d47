#pragma once
// Texts of any length in fields of a given width. The time taken does not grow with what is left out.

#include "chart/Drawing.h"
#include "chart/TextWidths.h"

#include <limits>

namespace zel {

/// As much of the first line as the width takes, ending in an ellipsis if that is not all.
[[nodiscard]] QString elided(const QString& text, double width, const TextAttribute& attribute);

/// Whether one line of that width takes all of it.
[[nodiscard]] bool isWhole(const QString& text, double width, const TextAttribute& attribute);

/// One line; a text that is too long ends in an ellipsis at the field's edge.
void fieldText(Picture& picture, const QString& text, Point at, double width, const TextAttribute& attribute,
               XPos x = XPos::left);

inline constexpr int smallestFigure = 6;
/// A figure or a date, which loses its meaning when it is cut: set smaller where it is too long, but not
/// below \p smallest. \p widths: where those that were measured are kept.
void fieldFigure(Picture& picture, const QString& text, Point at, double width, TextAttribute attribute,
                 XPos x = XPos::left, int smallest = smallestFigure, TextWidths* widths = nullptr);

/// The text's lines, \p mostLines at most. Blanks and line ends that it is broken at are in none of them.
[[nodiscard]] QStringList wrapped(const QString& text, double width, const TextAttribute& attribute,
                                  qsizetype mostLines = std::numeric_limits<qsizetype>::max());

/// Of a text that is printed in full: no note that somebody wrote is as long, and one of megabytes would take
/// minutes and thousands of pages.
inline constexpr qsizetype longestPrinted = 100'000;

/// A text of an ordinary length as it is; of a longer one as much as some thirty pages take, and a last line
/// that tells how much is left out.
[[nodiscard]] QString printable(const QString& text);

/// Wrapped lines that hang below \p at, \p mostLines at most; the last one ends in an ellipsis if
/// the text goes on.
void fieldParagraph(Picture& picture, const QString& text, Point at, double width,
                    const TextAttribute& attribute, int mostLines = 5);

/// Height of a line in that attribute.
[[nodiscard]] double lineHeight(const TextAttribute& attribute);

} // namespace zel

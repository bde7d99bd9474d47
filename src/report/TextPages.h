#pragma once
// Lists of texts of any length, each under a head of its own, which go on from page to page.

#include "chart/Picture.h"

#include <span>
#include <vector>

namespace zel {

/// A text of the list.
struct TextItem {
    int lines = 0;    ///< without its head
    double least = 0; ///< height that it takes however short it is
};

/// What of an item stands on one page, under its head.
struct TextPart {
    std::size_t item = 0;
    int from = 0;        ///< the first of its lines
    int lines = 0;       ///< how many of them
    double height = 0;   ///< with its head
    bool goesOn = false; ///< on the next page, which the part's last line says

    bool operator==(const TextPart&) const = default;
};

using TextPages = std::vector<std::vector<TextPart>>;

/// Fills pages of that height from their top: an item grows as far as there is room, and goes on on the next
/// page where there is none. A part's height leaves \p margins free beside its lines.
[[nodiscard]] TextPages textPages(std::span<const TextItem> items, double height, double line,
                                  double margins);

inline constexpr double textPartMargin = 4; ///< above the head, and below the last line

/// What stands over an item's lines.
struct TextHead {
    QString text;
    QString atRight;
};
/// Head and lines of one part in its box. \p lines: all of the item's.
void drawTextPart(Picture& picture, const Rect& box, const TextHead& head, const QStringList& lines,
                  const TextPart& part);

} // namespace zel

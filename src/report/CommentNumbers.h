#pragma once
// Where the numbers of the comments stand above their boxes.

#include "chart/Drawing.h"

#include <vector>

namespace zel {

/// The left edge of a comment's box, and the number under which the report lists the comment.
struct NumberedBox {
    double x = 0;
    int number = 0;
};

struct CommentNumber {
    QString text;
    Point origin; ///< bottom left
};

/// Each number from its box's edge on; those of boxes that begin together are one text, in several rows if it
/// is long, of which the last tells how many more there are. A text that would run into the one beside it
/// stands in a row above. \p at is the bottom left of the area that they stay in,
/// from left to right.
[[nodiscard]] std::vector<CommentNumber> commentNumbers(std::vector<NumberedBox> boxes, Point at,
                                                        double areaWidth, const TextAttribute& attribute);

} // namespace zel

#pragma once
// Comments as bands below a picture of a long time, with their text where it has room.

#include "chart/Picture.h"
#include "chart/TimeScale.h"
#include "store/RecordLinks.h"

#include <vector>

namespace zel {

struct CommentBand {
    Rect band;     ///< from the comment's begin to its end, as far as they lie in the period
    QString label; ///< its text on one line, shortened where it is long; empty where it has no room
    Point labelAt; ///< bottom left
    QColor color;
};

struct CommentBands {
    std::vector<CommentBand> shown; ///< the latest first
    double height = 0;              ///< that they take, with the line that counts those below
    int wordless = 0;               ///< shown without their text, which has no room
    int covered = 0;                ///< of those that are shown: they lie over others
    int left = 0;                   ///< not shown, as there is room for no row
};

inline constexpr double commentBandHeight = 14; ///< of a row

/// Of all comments that have a day of the period: none of them is left out where there is room for a row, as
/// its days would look like days on which nothing was changed. The later ones tell more and are the first to
/// have their text; bands without are lower and stand below the others. Rows end at \p bottom; neither bands
/// nor labels touch each other, except those that are counted, or leave the scale's width.
[[nodiscard]] CommentBands layOutCommentBands(const CommentList& comments, const TimeScale& scale,
                                              double bottom, int mostRows, const LocalZone& zone);

/// With the counts at \p bottom. \p black: without colours.
void drawCommentBands(Picture& picture, const CommentBands& bands, const TimeScale& scale, double bottom,
                      bool black);

} // namespace zel

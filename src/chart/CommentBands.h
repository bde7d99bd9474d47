#pragma once
// Comments as labelled bands below a picture of a long time: as many as there is room for.

#include "analysis/ReadingSelection.h"
#include "chart/Picture.h"
#include "chart/TimeScale.h"
#include "store/RecordLinks.h"

namespace zel {

struct CommentBand {
    Rect band;     ///< from the comment's begin to its end, as far as they lie in the period
    QString label; ///< its text on one line, shortened where it is long; empty for none
    Point labelAt; ///< bottom left
    QColor color;
};

struct CommentBands {
    std::vector<CommentBand> shown; ///< the latest first
    int rows = 0;                   ///< that they take
    int left = 0;                   ///< comments of the period that have no room

    [[nodiscard]] double height() const; ///< with the line that counts those that have no room
};

inline constexpr double commentBandHeight = 14; ///< of a row

/// Of all comments that have a day of the period. The later ones tell more and are placed first. Rows go down
/// from \p top; neither bands nor labels touch each other or leave the scale's width.
[[nodiscard]] CommentBands layOutCommentBands(const CommentList& comments, const Period& period,
                                              const TimeScale& scale, double top, int mostRows);

/// \p black: without colours.
void drawCommentBands(Picture& picture, const CommentBands& bands, const TimeScale& scale, double top,
                      bool black);

} // namespace zel

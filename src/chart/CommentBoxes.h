#pragma once
// From comments to their boxes on the chart and back, by dates alone.

#include "analysis/ReadingSelection.h"
#include "chart/DrawManager.h"
#include "chart/TimeScale.h"
#include "store/RecordLinks.h"

namespace zel {

/// A comment's box as it is to be shown.
struct CommentBox {
    QString CommentID;
    QColor strokeColour;
    Rect bounds; ///< above the bottom of the chart
    bool isSelected = false;
    bool isCutLeft = false; ///< it begins before the period
    bool isCutRight = false;
};

/// The comment's dates in order; none where it has none. A date that is missing is the other one, with its
/// whole day, as in commentDays().
[[nodiscard]] std::optional<Period> commentPeriod(const CommentModel& comment);

/// Boxes for the comments that begin or end in the period, as far as they lie in it. A comment that covers
/// all of it and more on both sides has none: it would tell nothing apart.
[[nodiscard]] std::vector<CommentBox> commentBoxes(const CommentList& comments, const Period& period,
                                                   const TimeScale& scale);

/// Adds a box to the chart whose bottom is at \p bottom.
CommentShape createCommentInRect(DrawManager& manager, const CommentBox& box, double bottom);

/// The whole days that a box stands for after one of its edges was dragged.
/// \p right: the right edge was; the other one is nudged by an hour, so that it stays on its own day.
[[nodiscard]] Period draggedDates(const Rect& rect, bool right, const TimeScale& scale);

/// A comment of one day, that at \p x, selected and with no IDs yet. \p colourIndex is 0 to 3.
[[nodiscard]] CommentModel newCommentAt(double x, int colourIndex, const TimeScale& scale,
                                        const LocalZone& zone);

/// Whether a comment may be dropped there: in the strips at the bottom of the view.
[[nodiscard]] bool isInsideCommentZone(Point point, const Rect& bounds);

} // namespace zel

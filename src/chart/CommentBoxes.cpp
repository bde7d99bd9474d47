#include "chart/CommentBoxes.h"

#include "chart/ChartScale.h"

#include <algorithm>

namespace zel {

namespace {

Period wholeDays(Instant begin, Instant end) {
    return {DateToDayBoundary(begin, true), DateToDayBoundary(end, false)};
}

} // namespace

std::optional<Period> commentPeriod(const CommentModel& comment) {
    const bool hasBegin = !isNilDate(comment.beginDate), hasEnd = !isNilDate(comment.endDate);
    if (!hasBegin && !hasEnd) return {};
    if (!hasBegin) return Period{DateToDayBoundary(*comment.endDate, true), *comment.endDate};
    if (!hasEnd) return Period{*comment.beginDate, DateToDayBoundary(*comment.beginDate, false)};
    const auto [begin, end] = std::minmax(*comment.beginDate, *comment.endDate);
    return Period{begin, end};
}

std::vector<CommentBox> commentBoxes(const CommentList& comments, const Period& period,
                                     const TimeScale& scale) {
    std::vector<CommentBox> boxes;
    for (const auto& comment : comments) {
        const auto dates = commentPeriod(*comment);
        if (!dates || (!period.contains(dates->begin) && !period.contains(dates->end))) continue;
        const Period shown =
            wholeDays(std::max(dates->begin, period.begin), std::min(dates->end, period.end));
        const double x = scale.calcXPos(shown.begin);
        const bool isCutLeft = dates->begin < period.begin;
        const bool isCutRight = period.end < DateToDayBoundary(dates->end, true);
        boxes.push_back({comment->CommentID,
                         getCommentColor(comment->degree, true),
                         {x, dateHeight, scale.calcXPos(shown.end) - x, commentHeight},
                         comment->isSelected,
                         isCutLeft,
                         isCutRight});
    }
    return boxes;
}

CommentShape createCommentInRect(DrawManager& manager, const CommentBox& box, double bottom) {
    auto shape = std::make_shared<GFXRoundRect>(box.CommentID, box.strokeColour, box.bounds);
    shape->isCutLeft = box.isCutLeft;
    shape->isCutRight = box.isCutRight;
    shape->offsetLocationByY(bottom);
    manager.addObject(shape);
    if (box.isSelected) manager.selectObject(shape);
    return shape;
}

Period draggedDates(const Rect& rect, bool right, const TimeScale& scale) {
    using namespace std::chrono_literals;
    const Instant atX = scale.XPosToDate(rect.x) + (right ? 1h : 0h);
    const Instant atRight = scale.XPosToDate(rect.right()) - (right ? 0h : 1h);
    const auto [begin, end] = std::minmax(atX, atRight);
    return wholeDays(begin, end);
}

CommentModel newCommentAt(double x, int colourIndex, const TimeScale& scale, const LocalZone& zone) {
    const Period day = wholeDays(scale.XPosToDate(x), scale.XPosToDate(x));
    CommentModel comment;
    comment.degree = static_cast<std::uint32_t>(4 - std::clamp(colourIndex, 0, 3));
    comment.beginDate = day.begin;
    comment.endDate = day.end;
    comment.beginDay = comment.endDay = zone.day(day.begin);
    comment.isSelected = true;
    return comment;
}

bool isInsideCommentZone(Point point, const Rect& bounds) {
    return bounds.contains(point) && point.y < getBaseAreaHeight();
}

} // namespace zel

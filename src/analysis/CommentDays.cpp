#include "analysis/CommentDays.h"

#include <algorithm>

namespace zel {

std::optional<CommentDays> commentDays(const CommentModel& comment) {
    const DayNumber begin = isNilDay(comment.beginDay) ? comment.endDay : comment.beginDay;
    const DayNumber end = isNilDay(comment.endDay) ? begin : comment.endDay;
    if (isNilDay(begin)) return {};
    return CommentDays{std::min(begin, end), std::max(begin, end)};
}

} // namespace zel

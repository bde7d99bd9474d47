#pragma once

#include "store/CommentModel.h"

#include <optional>

namespace zel {

/// First and last day that a comment is about, in order.
struct CommentDays {
    DayNumber begin = noDay;
    DayNumber end = noDay;
};

/// A day that is missing or cannot be read is the other one. \return none where both are
[[nodiscard]] std::optional<CommentDays> commentDays(const CommentModel& comment);

} // namespace zel

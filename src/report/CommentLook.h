#pragma once

#include "store/RecordLinks.h"

#include <QString>

namespace zel {

/// The number under which the report lists the comment, from 1.
[[nodiscard]] QString commentNumber(const CommentList& comments, const CommentModel& comment);
/// The name of its colour, for whoever prints without colours.
[[nodiscard]] QString commentColorName(const CommentModel& comment);

} // namespace zel

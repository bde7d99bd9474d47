#pragma once

#include "analysis/ReadingRows.h"

#include <span>
#include <vector>

namespace zel {

/// Rows for the days of \p period that a comment covers and that have no reading, by date; no more
/// than 36,525, a century.
/// \p readings by date, not empty; \p comments by begin date
[[nodiscard]] std::vector<ReadingRow> addNArecords(std::span<const ReadingRow> readings,
                                                   const CommentList& comments, const Period& period,
                                                   const LocalZone& zone);

/// The same time of day \p number days later: so many times 86400 seconds, a daylight-saving change aside.
[[nodiscard]] Instant daysLater(Instant date, int number, const LocalZone& zone);

} // namespace zel

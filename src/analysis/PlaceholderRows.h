#pragma once

#include "analysis/ReadingRows.h"

#include <span>
#include <vector>

namespace zel {

/// A century of days. Only dates that are wrong make more, and then millions.
inline constexpr int mostPlaceholders = 36'525;

struct PlaceholderRows {
    std::vector<ReadingRow> rows; ///< by date
    bool isCut = false;           ///< there were more days than mostPlaceholders
};

/// Rows for the days of \p period that a comment covers and that have no reading.
/// \p readings by date, not empty; \p comments by begin date
[[nodiscard]] PlaceholderRows addNArecords(std::span<const ReadingRow> readings, const CommentList& comments,
                                           const Period& period, const LocalZone& zone);

/// The same time of day \p number days later: so many times 86400 seconds, a daylight-saving change aside.
[[nodiscard]] Instant daysLater(Instant date, int number, const LocalZone& zone);

} // namespace zel

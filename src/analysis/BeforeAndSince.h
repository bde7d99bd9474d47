#pragma once

#include "analysis/DayMeans.h"
#include "store/RecordLinks.h"

#include <QString>

namespace zel {

/// The days from one to another, both included, and the means of their readings.
struct SpanMeans {
    DayNumber begin = noDay;
    DayNumber end = noDay;
    PressureMeans means{};
    int excluded = 0;    ///< readings of these days that are left out
    int unmeasured = 0;  ///< those without pressures, which do not count
    int ofOtherZone = 0; ///< of the means, stored in another time zone than the computer's
};

/// What was measured in the 14 days before a comment begins, and from its first day on until another comment
/// begins, 28 days at most.
struct BeforeAndSince {
    SpanMeans before;
    SpanMeans since;
};

/// Fewer say little.
inline constexpr std::uint64_t enoughReadings = 6;

/// \p means: of all readings of the patient; \p comments: all of the patient, by their begin. A comment
/// without a begin has nothing before or since.
[[nodiscard]] BeforeAndSince calcBeforeAndSince(const DayMeans& means, const CommentList& comments,
                                                const CommentModel& comment);

/// "142/88 (26) before, 133/82 (28) since: -9/-6", in mmHg with numbers of readings. The difference is that
/// of the numbers shown. Says where there are fewer than enoughReadings, how many are left out, and how many
/// were stored in another time zone; empty for a comment without a begin.
[[nodiscard]] QString describe(const BeforeAndSince& change);

} // namespace zel

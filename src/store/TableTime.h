#pragma once
// Date and time as a cell of a table has them.

#include "store/Dates.h"

#include <QString>

#include <tl/expected.hpp>

#include <cstdint>

namespace zel {

/// How a date is written that has not the form 2026-11-21.
enum class DateOrder { onlyIso, dmy, mdy, ymd };

struct TableTime {
    Instant time;
    /// Minutes that the clocks were ahead of UTC; ReadingModel::noOffset where the cell does not say so, and
    /// the computer's zone holds.
    std::int16_t offset;
};

enum class TableTimeProblem {
    noTime,  ///< none of the forms, or no such day and time
    noOrder, ///< a day that may be another one, unless its order is known
    skipped, ///< the clocks here left that time out when they were put forward
};

/// The forms are 2026-11-21T07:30:00+01:00, with a blank for the T, without seconds, or without the offset;
/// with an order also 21.11.2026 7:30, 11/21/2026 7:30 PM and the like.
[[nodiscard]] tl::expected<TableTime, TableTimeProblem> readTableTime(const QString& text, DateOrder order,
                                                                      const LocalZone& zone);

/// The day alone, as 2026-11-21; noDay for anything else.
[[nodiscard]] DayNumber readTableDay(const QString& text);

/// As 2026-11-21T07:30:00+01:00, which is the data file's form, too.
[[nodiscard]] QString tableTimeText(Instant time, std::int16_t offset, const LocalZone& zone);

} // namespace zel

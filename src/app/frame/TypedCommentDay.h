#pragma once
// The two days of a comment, as they are shown and typed.

#include "store/Dates.h"

namespace zel {

/// In a pattern of the settings; empty for no date.
[[nodiscard]] QString commentDayText(const Date& date, const QString& pattern);
/// The first instant of the day that was typed, as typedDay() has it. None if that is no day from 1900 to
/// 9999.
[[nodiscard]] Date typedCommentDay(const QString& text, const QString& pattern);
/// More than two years after today: a slip of the finger in the year.
[[nodiscard]] bool isFarAhead(Instant day, Instant today);

} // namespace zel

#pragma once
// The data file's form of a date: 2019-03-22T14:05:00+01:00.

#include "store/Dates.h"

#include <string_view>

namespace zel {

/// A date in the file's form, with or without milliseconds; none if it is none.
[[nodiscard]] Date XMLStrToDate(std::string_view text);
/// The date and time that such a text shows, without its zone, as if in UTC; none if it is none.
[[nodiscard]] Date XMLStrToWallClock(std::string_view text);
/// When the clocks here show what the text shows, so that its day stays the same in every time zone.
[[nodiscard]] Date XMLStrToLocalDate(std::string_view text);
/// How far the clocks that such a text shows are ahead of UTC; none where it does not end in "+hh:mm".
[[nodiscard]] std::optional<std::chrono::minutes> XMLStrToOffset(std::string_view text);
/// The file's form; no date gives getEmptyDateStr().
[[nodiscard]] QString XMLDateToStr(const Date& date);
/// "0001-01-01T00:00:00+08:00", whatever the time zone: the file format's text for no date.
[[nodiscard]] QString getEmptyDateStr();

} // namespace zel

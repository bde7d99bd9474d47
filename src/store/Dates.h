#pragma once
// Dates: instants in time, read and written with Unicode date patterns in the computer's time zone, and the
// calendar-day arithmetic that readings are grouped and filtered by. The calendar is the Gregorian one
// throughout, also before its introduction.

#include <QString>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>

namespace zel {

using Instant = std::chrono::sys_time<std::chrono::milliseconds>;
/// A date, or none where the file or the user gave none.
using Date = std::optional<Instant>;

/// Locales by number: 1 "en_US_POSIX", 0 "en_US", any other none.
[[nodiscard]] const char* getLocale(int number);

/// Reads the whole of \p text with a Unicode date pattern; none if it does not match exactly.
[[nodiscard]] Date StrToDate(const QString& text, const QString& pattern);
/// 12 and 1 to 11, as a clock's hand shows it.
[[nodiscard]] constexpr int hourOnDial(int minuteOfDay) {
    const int hour = minuteOfDay / 60 % 12;
    return hour == 0 ? 12 : hour;
}
/// As StrToDate, where each letter of the pattern is a digit. No date if one is missing or no digit: the year
/// before it would be taken for a shorter one.
[[nodiscard]] Date digitsToDate(const QString& digits, const QString& pattern);
/// Local time, locale en_US_POSIX; a null text for no date.
[[nodiscard]] QString DateToStr(const Date& date, const QString& pattern);
/// As DateToStr, in UTC.
[[nodiscard]] QString DateToStr_EN(const Date& date, const QString& pattern);

/// 0001-01-01 00:00 local time: an unknown date of birth, a comment's date that is not set.
[[nodiscard]] Instant getNilDate();
/// 2000-01-01 00:00 local time: a reading that the monitor stored without a valid clock.
[[nodiscard]] Instant getNilReadingDate();
/// True for no date and for any date in year 0001, of either era.
[[nodiscard]] bool isNilDate(const Date& date);
/// True for no date and for any time on 2000-01-01.
[[nodiscard]] bool isNilReadingDate(const Date& date);
/// 1 January, 00:00 local time, of the year of \p now.
[[nodiscard]] Instant FirstDayOfThisYear(Instant now);

/// First (\p begin) or last second of the date's day.
[[nodiscard]] Instant DateToDayBoundary(Instant date, bool begin);
/// Whole calendar days from a to b, daylight-saving changes aside.
[[nodiscard]] std::int64_t DayDiff(Instant a, Instant b);
/// Whole seconds from a to b, truncated toward zero.
[[nodiscard]] std::int64_t SecondDiff(Instant a, Instant b);
[[nodiscard]] Instant getDateMonthAgo(Instant date, int months);
[[nodiscard]] bool greaterInDay(Instant a, Instant b);
/// Whole years; a birthday on 29 February is reached on 1 March in other years.
[[nodiscard]] int GetAge(Instant birth, Instant today);

/// Calendar day, counted from 1970-01-01 in local time; noDay for no date. Days compare as their dates do.
using DayNumber = std::int32_t;
inline constexpr DayNumber noDay = INT32_MIN;

/// The time zone of one pass over many dates: places them without asking the system each time.
class LocalZone {
public:
    LocalZone(); ///< the computer's time zone as it is now
    ~LocalZone();
    LocalZone(LocalZone&&) noexcept;
    LocalZone& operator=(LocalZone&&) noexcept;

    [[nodiscard]] DayNumber day(const Date& date) const;
    /// Day and minute of the day, 0 to 1439, at once; noDay and 0 for no date.
    struct DayMinute {
        DayNumber day = noDay;
        int minute = 0;
    };
    [[nodiscard]] DayMinute dayMinute(const Date& date) const;
    /// What the clocks show, as if they stood in UTC; none for no date.
    [[nodiscard]] Date wallClock(const Date& date) const;
    /// When the clocks show \p wall, which is given as if they stood in UTC; none when they leave it out.
    [[nodiscard]] Date instantOf(Instant wall) const;

private:
    struct Zone;
    std::unique_ptr<Zone> zone;
};

/// noDay, and whatever isNilDate() takes for no date.
[[nodiscard]] inline bool isNilDay(DayNumber day) {
    constexpr std::chrono::sys_days second{std::chrono::year{2} / 1 / 1};
    return day < DayNumber{second.time_since_epoch().count()};
}
/// noDay, 2000-01-01, and whatever isNilDate() takes for no date.
[[nodiscard]] inline bool isUndatedDay(DayNumber day) {
    constexpr std::chrono::sys_days marker{std::chrono::year{2000} / 1 / 1};
    return day == DayNumber{marker.time_since_epoch().count()} || isNilDay(day);
}
/// The day as "yyyy/MM/dd"; empty for noDay.
[[nodiscard]] QString dayText(DayNumber day);
/// The day in a pattern made of yyyy, MM, dd and other characters; empty for noDay.
[[nodiscard]] QString dayText(DayNumber day, const QString& pattern);

} // namespace zel

#include "store/Dates.h"

#include "store/IcuTime.h"

#include <unicode/basictz.h>
#include <unicode/gregocal.h>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;
using std::chrono::days;
using std::chrono::floor;
using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

constexpr milliseconds oneDay = days{1};

Instant localToInstant(Instant wall, const icu::TimeZone& zone) { return wall - offsetAt(zone, wall, true); }

DayNumber dayOf(Instant wall) { return static_cast<DayNumber>(floor<days>(wall).time_since_epoch().count()); }

DayNumber localDay(Instant date) { return dayOf(date + offsetAt(*systemZone(), date, false)); }

/// The first of the instants that the clocks show as \p wall.
Instant firstLocalToInstant(Instant wall, const icu::TimeZone& zone) {
    const auto* rules = dynamic_cast<const icu::BasicTimeZone*>(&zone);
    if (!rules) return localToInstant(wall, zone);
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t standard = 0;
    std::int32_t saving = 0;
    rules->getOffsetFromLocal(toUDate(wall), UCAL_TZ_LOCAL_FORMER, UCAL_TZ_LOCAL_FORMER, standard, saving,
                              status);
    return wall - milliseconds{standard + saving};
}

/// Clocks that go back across midnight show 00:00 twice; the day starts with the first.
Instant startOfDay(DayNumber day) { return firstLocalToInstant(Instant{oneDay * day}, *systemZone()); }

std::chrono::year_month_day civil(DayNumber day) {
    return std::chrono::year_month_day{std::chrono::sys_days{days{day}}};
}

constexpr DayNumber dayNumber(int year, unsigned month, unsigned day) {
    using namespace std::chrono;
    return static_cast<DayNumber>(
        sys_days{std::chrono::year{year} / std::chrono::month{month} / std::chrono::day{day}}
            .time_since_epoch()
            .count());
}

constexpr DayNumber nilReadingDay = dayNumber(2000, 1, 1);

} // namespace

const char* getLocale(int number) {
    switch (number) {
    case 0: return "en_US";
    case 1: return "en_US_POSIX";
    default: return nullptr;
    }
}

Date StrToDate(const QString& text, const QString& pattern) {
    const Date wall = parseAsUtc(text, pattern);
    if (!wall) return {};
    // A local time that a daylight-saving change skips is read as the hour after it, so that no reading loses
    // its date.
    return localToInstant(*wall, *systemZone());
}

Date digitsToDate(const QString& digits, const QString& pattern) {
    const bool isWhole = digits.size() == pattern.size()
                         && std::ranges::all_of(digits, [](QChar c) { return c >= u'0' && c <= u'9'; });
    return isWhole ? StrToDate(digits, pattern) : Date{};
}

QString DateToStr(const Date& date, const QString& pattern) {
    return formatDate(date, pattern, getLocale(1), systemZone());
}

QString DateToStr_EN(const Date& date, const QString& pattern) {
    return formatDate(date, pattern, getLocale(1), utcZone());
}

Instant getNilDate() { return startOfDay(dayNumber(1, 1, 1)); }

Instant getNilReadingDate() { return startOfDay(nilReadingDay); }

bool isNilDate(const Date& date) {
    if (!date) return true;
    const int year = static_cast<int>(civil(localDay(*date)).year());
    return year == 1 || year == 0; // year 0 is 1 before our era, which is written 0001 too
}

bool isNilReadingDate(const Date& date) { return !date || localDay(*date) == nilReadingDay; }

Instant FirstDayOfThisYear(Instant now) {
    return startOfDay(dayNumber(static_cast<int>(civil(localDay(now)).year()), 1, 1));
}

Instant DateToDayBoundary(Instant date, bool begin) {
    const DayNumber day = localDay(date);
    return begin ? startOfDay(day) : localToInstant(Instant{oneDay * (day + 1)} - seconds{1}, *systemZone());
}

std::int64_t DayDiff(Instant a, Instant b) {
    const auto between = DateToDayBoundary(b, true) - DateToDayBoundary(a, true);
    // The hour added makes the 23 hours of a daylight-saving change a whole day.
    return (between + std::chrono::hours{1}) / oneDay;
}

std::int64_t SecondDiff(Instant a, Instant b) {
    const auto secondsOf = [](Instant date) {
        return static_cast<double>(date.time_since_epoch().count()) / 1000;
    };
    return static_cast<std::int64_t>(secondsOf(b) - secondsOf(a));
}

Instant getDateMonthAgo(Instant date, int months) {
    UErrorCode status = U_ZERO_ERROR;
    icu::GregorianCalendar calendar{systemZone().release(), status};
    calendar.setTime(toUDate(date), status);
    calendar.add(UCAL_MONTH, -months, status);
    const UDate earlier = calendar.getTime(status);
    return U_SUCCESS(status) ? fromUDate(earlier) : date;
}

bool greaterInDay(Instant a, Instant b) { return localDay(a) > localDay(b); }

int GetAge(Instant birth, Instant today) {
    const auto from = civil(localDay(birth));
    const auto to = civil(localDay(today));
    const int years = static_cast<int>(to.year()) - static_cast<int>(from.year());
    const bool birthdayReached =
        to.month() > from.month() || (to.month() == from.month() && to.day() >= from.day());
    return birthdayReached ? years : years - 1;
}

struct LocalZone::Zone {
    std::unique_ptr<icu::TimeZone> zone = systemZone();
};

LocalZone::LocalZone() : zone{std::make_unique<Zone>()} {}
LocalZone::~LocalZone() = default;
LocalZone::LocalZone(LocalZone&&) noexcept = default;
LocalZone& LocalZone::operator=(LocalZone&&) noexcept = default;

DayNumber LocalZone::day(const Date& date) const { return dayMinute(date).day; }

LocalZone::DayMinute LocalZone::dayMinute(const Date& date) const {
    if (!date) return {};
    const Instant wall = *date + offsetAt(*zone->zone, *date, false);
    const auto sinceMidnight = wall - floor<days>(wall);
    return {dayOf(wall), static_cast<int>(sinceMidnight / std::chrono::minutes{1})};
}

Date LocalZone::wallClock(const Date& date) const {
    if (!date) return {};
    return *date + offsetAt(*zone->zone, *date, false);
}

Date LocalZone::instantOf(Instant wall) const {
    const Instant instant = localToInstant(wall, *zone->zone);
    return wallClock(instant) == wall ? Date{instant} : Date{};
}

QString dayText(DayNumber day) { return dayText(day, u"yyyy/MM/dd"_s); }

QString dayText(DayNumber day, const QString& pattern) {
    if (day == noDay) return {};
    const auto date = civil(day);
    const auto padded = [](unsigned value, int width) {
        return u"%1"_s.arg(value, width, 10, QLatin1Char{'0'});
    };
    return QString{pattern}
        .replace("yyyy"_L1, padded(static_cast<unsigned>(static_cast<int>(date.year())), 4))
        .replace("MM"_L1, padded(static_cast<unsigned>(date.month()), 2))
        .replace("dd"_L1, padded(static_cast<unsigned>(date.day()), 2));
}

} // namespace zel

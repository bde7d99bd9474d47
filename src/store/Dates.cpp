#include "store/Dates.h"

#include "store/Log.h"

#include <unicode/basictz.h>
#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace zel {

using namespace Qt::StringLiterals;
using std::chrono::days;
using std::chrono::floor;
using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

constexpr milliseconds oneDay = days{1};
constexpr std::string_view emptyDateText = "0001-01-01T00:00:00+08:00";

icu::UnicodeString toIcu(const QString& text) {
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::int32_t>(text.size())};
}

QString fromIcu(const icu::UnicodeString& text) {
    return QString::fromUtf16(text.getBuffer(), text.length());
}

UDate toUDate(Instant date) { return static_cast<UDate>(date.time_since_epoch().count()); }

Instant fromUDate(UDate date) { return Instant{milliseconds{std::llround(date)}}; }

std::unique_ptr<icu::TimeZone> systemZone() {
    return std::unique_ptr<icu::TimeZone>{icu::TimeZone::createDefault()};
}

std::unique_ptr<icu::TimeZone> utcZone() {
    return std::unique_ptr<icu::TimeZone>{icu::TimeZone::getGMT()->clone()};
}

/// A strict formatter of the purely Gregorian calendar, or none for a pattern that is none.
std::unique_ptr<icu::SimpleDateFormat> formatter(const QString& pattern, const char* locale,
                                                 std::unique_ptr<icu::TimeZone> zone) {
    UErrorCode status = U_ZERO_ERROR;
    auto format = std::make_unique<icu::SimpleDateFormat>(toIcu(pattern), icu::Locale{locale}, status);
    auto calendar = std::make_unique<icu::GregorianCalendar>(zone.release(), icu::Locale{locale}, status);
    if (U_FAILURE(status)) return nullptr;
    calendar->setGregorianChange(-std::numeric_limits<double>::infinity(), status);
    format->adoptCalendar(calendar.release());
    format->setLenient(false);
    if (U_FAILURE(status)) return nullptr;
    return format;
}

QString format(const Date& date, const QString& pattern, const char* locale,
               std::unique_ptr<icu::TimeZone> zone) {
    if (!date) return {};
    const auto formatting = formatter(pattern, locale, std::move(zone));
    if (!formatting) return {};
    icu::UnicodeString text;
    formatting->format(toUDate(*date), text);
    return fromIcu(text);
}

/// Reads the whole text, fields without a zone as UTC.
Date parseAsUtc(const QString& text, const QString& pattern) {
    const auto parsing = formatter(pattern, getLocale(1), utcZone());
    if (!parsing) return {};
    const icu::UnicodeString source = toIcu(text);
    icu::ParsePosition position{0};
    const UDate date = parsing->parse(source, position);
    if (position.getIndex() == 0 || position.getIndex() != source.length()) return {};
    return fromUDate(date);
}

milliseconds offsetAt(const icu::TimeZone& zone, Instant date, bool isLocal) {
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t standard = 0;
    std::int32_t saving = 0;
    zone.getOffset(toUDate(date), static_cast<UBool>(isLocal), standard, saving, status);
    return milliseconds{standard + saving};
}

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

/// The same as \p shape, with any digits where that has zeros.
bool hasShape(std::string_view text, std::string_view shape) {
    return std::ranges::equal(
        text, shape, [](char c, char shown) { return shown == '0' ? c >= '0' && c <= '9' : c == shown; });
}

/// The number in a text of nothing but digits.
int digits(std::string_view text) {
    return std::accumulate(text.begin(), text.end(), 0,
                           [](int value, char c) { return value * 10 + (c - '0'); });
}

/// Exactly "yyyy-MM-ddTHH:mm:ss+hh:mm", the form that this program writes, or the same with milliseconds;
/// none for any other, which is left to the formatter. A whole file of dates is read this way, a hundred
/// times faster.
Date parseUsualForm(std::string_view text) {
    constexpr std::string_view shape = "0000-00-00T00:00:00";
    constexpr std::string_view millisecondsShape = ".000";
    constexpr std::string_view zoneShape = "+00:00";
    const bool hasMilliseconds = text.size() == shape.size() + millisecondsShape.size() + zoneShape.size();
    if (!hasMilliseconds && text.size() != shape.size() + zoneShape.size()) return {};
    const std::string_view zone = text.substr(text.size() - zoneShape.size());
    const std::string_view fraction =
        text.substr(shape.size(), hasMilliseconds ? millisecondsShape.size() : 0);
    if (!hasShape(text.substr(0, shape.size()), shape)
        || !hasShape(zone, zone.starts_with('-') ? "-00:00" : zoneShape)
        || (hasMilliseconds && !hasShape(fraction, millisecondsShape))) {
        return {};
    }
    const auto number = [text](std::size_t at, std::size_t length) {
        return digits(text.substr(at, length));
    };
    const int hour = number(11, 2);
    const int minute = number(14, 2);
    const int second = number(17, 2);
    const int zoneHour = digits(zone.substr(1, 2));
    const int zoneMinute = digits(zone.substr(4, 2));
    const std::chrono::year_month_day date{std::chrono::year{number(0, 4)},
                                           std::chrono::month{static_cast<unsigned>(number(5, 2))},
                                           std::chrono::day{static_cast<unsigned>(number(8, 2))}};
    if (!date.ok() || date.year() < std::chrono::year{1} || hour > 23 || minute > 59 || second > 59
        || zoneHour > 23 || zoneMinute > 59) {
        return {};
    }
    const int offset = (zoneHour * 60 + zoneMinute) * (zone.starts_with('-') ? -1 : 1);
    return Instant{std::chrono::sys_days{date}} + seconds{(hour * 60 + minute - offset) * 60 + second}
           + milliseconds{hasMilliseconds ? digits(fraction.substr(1)) : 0};
}

/// Any form that the rule of the file format takes: the last colon belongs to the zone, a point to
/// milliseconds.
Date parseAnyForm(const QString& text) {
    const auto colon = text.lastIndexOf(u':');
    if (colon < 0) {
        qCDebug(lcStore, "XML data error: %s", qUtf8Printable(text));
        return {};
    }
    const bool hasMilliseconds = text.contains(u'.');
    return parseAsUtc(QString{text}.remove(colon, 1),
                      hasMilliseconds ? u"yyyy-MM-dd'T'HH:mm:ss'.'SSSZZZ"_s : u"yyyy-MM-dd'T'HH:mm:ssZZZ"_s);
}

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

QString DateToStr(const Date& date, const QString& pattern) {
    return format(date, pattern, getLocale(1), systemZone());
}

QString DateToStr_EN(const Date& date, const QString& pattern) {
    return format(date, pattern, getLocale(1), utcZone());
}

QString DateToWeekDayStr(const Date& date) { return DateToStr_EN(date, u"EEEE"_s); }

QString getEnglishMonthStr(const Date& date) { return format(date, u"MMMM"_s, getLocale(0), systemZone()); }

QString getEnglishYearMonthStr(const Date& date) {
    return format(date, u"MMMM yyyy"_s, getLocale(0), systemZone());
}

QString XMLDateToStr(const Date& date) {
    if (!date) return getEmptyDateStr();
    // Offsets of the times before time zones have seconds, which the file's form has not. Rounded down they
    // keep the date on its day when it is read back.
    const auto offset = floor<std::chrono::minutes>(offsetAt(*systemZone(), *date, false));
    const auto minutes = std::abs(offset.count());
    return format(date, u"yyyy-MM-dd'T'HH:mm:ss"_s, getLocale(0), systemZone())
           + QString::asprintf("%c%02d:%02d", offset.count() < 0 ? '-' : '+', static_cast<int>(minutes / 60),
                               static_cast<int>(minutes % 60));
}

Instant getNilDate() { return startOfDay(dayNumber(1, 1, 1)); }

Instant getNilReadingDate() { return startOfDay(nilReadingDay); }

QString getEmptyDateStr() { return QString::fromLatin1(emptyDateText.data(), emptyDateText.size()); }

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

bool isBetweenDate(Instant d, Instant a, Instant b) { return a <= d && d <= b; }

bool greaterInDay(Instant a, Instant b) { return localDay(a) > localDay(b); }

bool greaterOrEqualInDay(Instant a, Instant b) { return localDay(a) >= localDay(b); }

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

Date LocalZone::XMLStrToDate(std::string_view text) const {
    if (text == emptyDateText) return getNilDate();
    if (const Date usual = parseUsualForm(text)) return usual;
    return parseAnyForm(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

DayNumber LocalZone::day(const Date& date) const { return dayMinute(date).day; }

LocalZone::DayMinute LocalZone::dayMinute(const Date& date) const {
    if (!date) return {};
    const Instant wall = *date + offsetAt(*zone->zone, *date, false);
    const auto sinceMidnight = wall - floor<days>(wall);
    return {dayOf(wall), static_cast<int>(sinceMidnight / std::chrono::minutes{1})};
}

bool isUndatedDay(DayNumber day) { return day == nilReadingDay || day < dayNumber(2, 1, 1); }

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

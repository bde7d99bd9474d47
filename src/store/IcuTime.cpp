#include "store/IcuTime.h"

#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace zel {

using std::chrono::milliseconds;

namespace {

icu::UnicodeString toIcu(const QString& text) {
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::int32_t>(text.size())};
}

QString fromIcu(const icu::UnicodeString& text) {
    return QString::fromUtf16(text.getBuffer(), text.length());
}

constexpr qsizetype longestDate = 30; // characters of the longest form, "yyyy-MM-ddTHH:mm:ss.SSS+hh:mm"
constexpr double farthest = 3.2e14;   // ms: some ten thousand years from 1970

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

/// Making a formatter takes a hundred times as long as using it. Each thread has its own, since using one
/// changes it.
const icu::SimpleDateFormat* parserOf(const QString& pattern) {
    struct Parser {
        QString pattern;
        std::unique_ptr<icu::SimpleDateFormat> format;
    };
    constexpr std::size_t enough = 8; // the program's own patterns
    thread_local std::vector<Parser> parsers;
    const auto known = std::ranges::find(parsers, pattern, &Parser::pattern);
    if (known != parsers.end()) return known->format.get();
    if (parsers.size() == enough) parsers.clear();
    parsers.push_back({pattern, formatter(pattern, getLocale(1), utcZone())});
    return parsers.back().format.get();
}

} // namespace

Instant fromUDate(UDate date) { return Instant{milliseconds{std::llround(date)}}; }

std::unique_ptr<icu::TimeZone> systemZone() {
    return std::unique_ptr<icu::TimeZone>{icu::TimeZone::createDefault()};
}

std::unique_ptr<icu::TimeZone> utcZone() {
    return std::unique_ptr<icu::TimeZone>{icu::TimeZone::getGMT()->clone()};
}

milliseconds offsetAt(const icu::TimeZone& zone, Instant date, bool isLocal) {
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t standard = 0;
    std::int32_t saving = 0;
    zone.getOffset(toUDate(date), static_cast<UBool>(isLocal), standard, saving, status);
    return milliseconds{standard + saving};
}

QString formatDate(const Date& date, const QString& pattern, const char* locale,
                   std::unique_ptr<icu::TimeZone> zone) {
    if (!date) return {};
    const auto formatting = formatter(pattern, locale, std::move(zone));
    if (!formatting) return {};
    icu::UnicodeString text;
    formatting->format(toUDate(*date), text);
    return fromIcu(text);
}

std::optional<ZonedDate> parseZoned(const QString& text, const QString& pattern) {
    // ICU divides by zero over some dozens of digits of a second.
    if (text.size() > longestDate) return {};
    const auto* parsing = parserOf(pattern);
    if (!parsing) return {};
    const icu::UnicodeString source = toIcu(text);
    icu::ParsePosition position{0};
    const std::unique_ptr<icu::Calendar> fields{parsing->getCalendar()->clone()};
    fields->clear();
    parsing->parse(source, *fields, position);
    if (position.getIndex() == 0 || position.getIndex() != source.length()) return {};
    UErrorCode status = U_ZERO_ERROR;
    const UDate date = fields->getTime(status);
    // Days are counted in whole numbers.
    if (U_FAILURE(status) || std::abs(date) > farthest) return {};
    return ZonedDate{fromUDate(date), offsetAt(fields->getTimeZone(), fromUDate(date), false)};
}

Date parseAsUtc(const QString& text, const QString& pattern) {
    const auto parsed = parseZoned(text, pattern);
    return parsed ? Date{parsed->date} : Date{};
}

} // namespace zel

#include "store/IcuTime.h"

#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>

#include <cmath>
#include <limits>

namespace zel {

using std::chrono::milliseconds;

namespace {

icu::UnicodeString toIcu(const QString& text) {
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::int32_t>(text.size())};
}

QString fromIcu(const icu::UnicodeString& text) {
    return QString::fromUtf16(text.getBuffer(), text.length());
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

} // namespace zel

#pragma once
// Dates by ICU: patterns, and what clocks show in a time zone. Only the sources of the store's dates use
// this.

#include "store/Dates.h"

#include <unicode/timezone.h>

namespace zel {

[[nodiscard]] inline UDate toUDate(Instant date) {
    return static_cast<UDate>(date.time_since_epoch().count());
}
[[nodiscard]] Instant fromUDate(UDate date);

[[nodiscard]] std::unique_ptr<icu::TimeZone> systemZone();
[[nodiscard]] std::unique_ptr<icu::TimeZone> utcZone();
/// How far the zone's clocks are ahead of UTC at an instant; \p isLocal: at what they show.
[[nodiscard]] std::chrono::milliseconds offsetAt(const icu::TimeZone& zone, Instant date, bool isLocal);

/// The date by a Unicode pattern; a null text for no date and for a pattern that is none.
[[nodiscard]] QString formatDate(const Date& date, const QString& pattern, const char* locale,
                                 std::unique_ptr<icu::TimeZone> zone);
struct ZonedDate {
    Instant date;
    std::chrono::milliseconds offset; ///< how far the text's zone is ahead of UTC
};
/// Reads the whole text, one without a zone as UTC. None for a text that is longer than a date, or a date
/// that is ten thousand years off.
[[nodiscard]] std::optional<ZonedDate> parseZoned(const QString& text, const QString& pattern);
/// The same without the zone.
[[nodiscard]] Date parseAsUtc(const QString& text, const QString& pattern);

} // namespace zel

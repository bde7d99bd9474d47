#include "store/XmlDate.h"

#include "store/IcuTime.h"
#include "store/Log.h"

#include <algorithm>
#include <numeric>

namespace zel {

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

constexpr std::string_view emptyDateText = "0001-01-01T00:00:00+08:00";

constexpr std::string_view zoneShape = "+dd:dd";

/// The same as \p shape, with any digit where that has a "d".
bool hasShape(std::string_view text, std::string_view shape) {
    return std::ranges::equal(
        text, shape, [](char c, char shown) { return shown == 'd' ? c >= '0' && c <= '9' : c == shown; });
}

/// The number in a text of nothing but digits.
int digits(std::string_view text) {
    return std::accumulate(text.begin(), text.end(), 0,
                           [](int value, char c) { return value * 10 + (c - '0'); });
}

struct FileDate {
    Instant date;
    Date wall; ///< what the text shows without its zone, as if in UTC; none where the zone has no sign
};

/// Exactly "yyyy-MM-ddTHH:mm:ss+hh:mm", the form that this program writes, or the same with milliseconds;
/// none for any other, which is left to the formatter. A whole file of dates is read this way, a hundred
/// times faster.
std::optional<FileDate> parseUsualForm(std::string_view text) {
    constexpr std::string_view shape = "dddd-dd-ddTdd:dd:dd";
    constexpr std::string_view millisecondsShape = ".ddd";
    const bool hasMilliseconds = text.size() == shape.size() + millisecondsShape.size() + zoneShape.size();
    if (!hasMilliseconds && text.size() != shape.size() + zoneShape.size()) return {};
    const auto offset = XMLStrToOffset(text);
    const std::string_view fraction =
        text.substr(shape.size(), hasMilliseconds ? millisecondsShape.size() : 0);
    if (!hasShape(text.substr(0, shape.size()), shape) || !offset
        || (hasMilliseconds && !hasShape(fraction, millisecondsShape))) {
        return {};
    }
    const auto number = [text](std::size_t at, std::size_t length) {
        return digits(text.substr(at, length));
    };
    const int hour = number(11, 2);
    const int minute = number(14, 2);
    const int second = number(17, 2);
    const std::chrono::year_month_day date{std::chrono::year{number(0, 4)},
                                           std::chrono::month{static_cast<unsigned>(number(5, 2))},
                                           std::chrono::day{static_cast<unsigned>(number(8, 2))}};
    if (!date.ok() || date.year() < std::chrono::year{1} || hour > 23 || minute > 59 || second > 59)
        return {};
    const Instant wall = Instant{std::chrono::sys_days{date}} + seconds{(hour * 60 + minute) * 60 + second}
                         + milliseconds{hasMilliseconds ? digits(fraction.substr(1)) : 0};
    return FileDate{wall - *offset, wall};
}

/// Without the digits beyond milliseconds.
QString withMilliseconds(QString text) {
    const auto begin = text.indexOf(u'.') + 1;
    if (begin == 0) return text;
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    const auto end = std::find_if_not(text.begin() + begin, text.end(), isDigit) - text.begin();
    return end > begin + 3 ? text.remove(begin + 3, end - begin - 3) : text;
}

/// The zone follows the seconds, which are at least one digit behind the second colon.
bool hasSignedZone(const QString& text) {
    const auto seconds = text.indexOf(u':', text.indexOf(u':') + 1) + 1;
    const auto sign = std::max(text.lastIndexOf(u'+'), text.lastIndexOf(u'-'));
    return sign > seconds;
}

/// Any form that the rule of the file format takes: the last colon belongs to the zone, a point to
/// milliseconds.
std::optional<FileDate> parseAnyForm(const QString& text) {
    const auto colon = text.lastIndexOf(u':');
    if (colon < 0) {
        qCDebug(lcStore, "XML data error: %s", qUtf8Printable(text));
        return {};
    }
    const bool hasMilliseconds = text.contains(u'.');
    const auto parsed =
        parseZoned(withMilliseconds(QString{text}.remove(colon, 1)),
                   hasMilliseconds ? u"yyyy-MM-dd'T'HH:mm:ss'.'SSSZZZ"_s : u"yyyy-MM-dd'T'HH:mm:ssZZZ"_s);
    if (!parsed) return {};
    return FileDate{parsed->date, hasSignedZone(text) ? Date{parsed->date + parsed->offset} : Date{}};
}

std::optional<FileDate> parseFileDate(std::string_view text) {
    if (text == emptyDateText) return FileDate{getNilDate(), parseUsualForm(text)->wall};
    if (const auto usual = parseUsualForm(text)) return usual;
    constexpr std::size_t longest = 100; // with more digits of a second than any clock has
    if (text.size() > longest) return {};
    return parseAnyForm(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

} // namespace

Date XMLStrToDate(std::string_view text) {
    const auto parsed = parseFileDate(text);
    return parsed ? Date{parsed->date} : Date{};
}

std::optional<std::chrono::minutes> XMLStrToOffset(std::string_view text) {
    if (text.size() < zoneShape.size()) return {};
    const std::string_view zone = text.substr(text.size() - zoneShape.size());
    if (!hasShape(zone, zone.starts_with('-') ? "-dd:dd" : zoneShape)) return {};
    const int hour = digits(zone.substr(1, 2)), minute = digits(zone.substr(4, 2));
    if (hour > 23 || minute > 59) return {};
    return std::chrono::minutes{(hour * 60 + minute) * (zone.starts_with('-') ? -1 : 1)};
}

Date XMLStrToWallClock(std::string_view text) {
    const auto parsed = parseFileDate(text);
    return parsed ? parsed->wall : Date{};
}

Date XMLStrToLocalDate(std::string_view text) {
    const auto parsed = parseFileDate(text);
    if (!parsed) return {};
    const auto& [date, wall] = *parsed;
    if (!wall) return date;
    const auto zone = systemZone();
    return date + offsetAt(*zone, date, false) == *wall ? date : *wall - offsetAt(*zone, *wall, true);
}

QString XMLDateToStr(const Date& date) {
    if (!date) return getEmptyDateStr();
    // Offsets of the times before time zones have seconds, which the file's form has not. Rounded down they
    // keep the date on its day when it is read back.
    const auto offset = floor<std::chrono::minutes>(offsetAt(*systemZone(), *date, false));
    const auto minutes = std::abs(offset.count());
    return formatDate(date, u"yyyy-MM-dd'T'HH:mm:ss"_s, getLocale(0), systemZone())
           + QString::asprintf("%c%02d:%02d", offset.count() < 0 ? '-' : '+', static_cast<int>(minutes / 60),
                               static_cast<int>(minutes % 60));
}

QString getEmptyDateStr() { return QString::fromLatin1(emptyDateText.data(), emptyDateText.size()); }

} // namespace zel

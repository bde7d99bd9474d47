#include "store/TableTime.h"

#include "store/ReadingModel.h"

#include <QRegularExpression>

#include <array>

namespace zel {

using namespace Qt::StringLiterals;
using std::chrono::hours;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

namespace {

using Match = QRegularExpressionMatch;
using Problem = TableTimeProblem;

const QRegularExpression& timeForm() {
    static const QRegularExpression form{QRegularExpression::anchoredPattern(
        uR"(\s*(\d{1,4})([-./])(\d{1,2})\2(\d{1,4})(?:[T ]\s*(\d{1,2}):(\d\d)(?::(\d\d)(?:[.,]\d{1,9})?)?)"
        uR"(\s*(?:([AaPp])\.?[Mm]\.?)?\s*(Z|[+-]\d\d:?\d\d)?)?\s*)"_s)};
    return form;
}

bool isIsoDay(const Match& match) {
    return match.capturedLength(1) == 4 && match.captured(2) == u"-" && match.capturedLength(3) == 2
           && match.capturedLength(4) == 2;
}

/// Where the year, the month and the day stand.
std::array<int, 3> placesOf(DateOrder order) {
    switch (order) {
    case DateOrder::dmy: return {4, 3, 1};
    case DateOrder::mdy: return {4, 1, 3};
    case DateOrder::onlyIso:
    case DateOrder::ymd: break;
    }
    return {1, 3, 4};
}

/// A year has four digits: of two, nobody knows the century.
tl::expected<std::chrono::sys_days, Problem> tableDay(const Match& match, DateOrder order) {
    if (order == DateOrder::onlyIso && !isIsoDay(match)) return tl::unexpected{Problem::noOrder};
    const auto [year, month, day] = placesOf(isIsoDay(match) ? DateOrder::ymd : order);
    const bool hasForm =
        match.capturedLength(year) == 4 && match.capturedLength(month) <= 2 && match.capturedLength(day) <= 2;
    const std::chrono::year_month_day date{std::chrono::year{match.captured(year).toInt()},
                                           std::chrono::month{match.captured(month).toUInt()},
                                           std::chrono::day{match.captured(day).toUInt()}};
    if (!hasForm || !date.ok()) return tl::unexpected{Problem::noTime};
    return std::chrono::sys_days{date};
}

/// Since midnight.
tl::expected<seconds, Problem> tableHour(const Match& match) {
    int hour = match.captured(5).toInt();
    const int minute = match.captured(6).toInt();
    const int second = match.captured(7).toInt();
    const QString half = match.captured(8).toLower();
    const bool isHour = half.isEmpty() ? hour <= 23 : hour >= 1 && hour <= 12;
    if (match.capturedLength(5) == 0 || !isHour || minute > 59 || second > 59)
        return tl::unexpected{Problem::noTime};
    if (!half.isEmpty()) hour = hour % 12 + (half == u"p" ? 12 : 0);
    return hours{hour} + minutes{minute} + seconds{second};
}

/// Of Z, +01:00 or +0100; none for another text.
std::optional<minutes> tableOffset(QStringView text) {
    if (text == u"Z") return minutes{0};
    const int hour = text.mid(1, 2).toInt();
    const int minute = text.right(2).toInt();
    if (hour > 23 || minute > 59) return {};
    return (text.startsWith(u'-') ? -1 : 1) * (hours{hour} + minutes{minute});
}

tl::expected<TableTime, Problem> placed(Instant wall, QStringView offset, const LocalZone& zone) {
    if (offset.isEmpty()) {
        const Date here = zone.instantOf(wall);
        if (!here) return tl::unexpected{Problem::skipped};
        return TableTime{*here, ReadingModel::noOffset};
    }
    const auto ahead = tableOffset(offset);
    if (!ahead) return tl::unexpected{Problem::noTime};
    return TableTime{wall - *ahead, static_cast<std::int16_t>(ahead->count())};
}

} // namespace

tl::expected<TableTime, TableTimeProblem> readTableTime(const QString& text, DateOrder order,
                                                        const LocalZone& zone) {
    constexpr qsizetype longest = 60;
    const Match match = timeForm().match(text.size() > longest ? QString{} : text);
    if (!match.hasMatch()) return tl::unexpected{Problem::noTime};
    const auto day = tableDay(match, order);
    if (!day) return tl::unexpected{day.error()};
    const auto hour = tableHour(match);
    if (!hour) return tl::unexpected{hour.error()};
    return placed(*day + *hour, match.capturedView(9), zone);
}

DayNumber readTableDay(const QString& text) {
    const auto time = readTableTime(text + u" 00:00Z"_s, DateOrder::onlyIso, LocalZone{});
    if (!time) return noDay;
    return static_cast<DayNumber>(
        std::chrono::floor<std::chrono::days>(time->time).time_since_epoch().count());
}

QString tableTimeText(Instant time, std::int16_t offset, const LocalZone& zone) {
    const minutes ahead = offset == ReadingModel::noOffset
                              ? std::chrono::floor<minutes>(*zone.wallClock(time) - time)
                              : minutes{offset};
    const Instant wall = time + ahead;
    const auto day = std::chrono::floor<std::chrono::days>(wall);
    const std::chrono::hh_mm_ss clock{std::chrono::floor<seconds>(wall - day)};
    const auto distance = std::abs(ahead.count());
    return dayText(static_cast<DayNumber>(day.time_since_epoch().count()), u"yyyy-MM-dd"_s)
           + QString::asprintf("T%02d:%02d:%02d%c%02d:%02d", static_cast<int>(clock.hours().count()),
                               static_cast<int>(clock.minutes().count()),
                               static_cast<int>(clock.seconds().count()), ahead.count() < 0 ? '-' : '+',
                               static_cast<int>(distance / 60), static_cast<int>(distance % 60));
}

} // namespace zel

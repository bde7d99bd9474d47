#include "cli/PeriodOptions.h"

#include "analysis/DisplayPeriod.h"

#include <QDate>

#include <algorithm>

namespace zel::cli {

using namespace Qt::StringLiterals;

tl::expected<Date, Failure> dayOption(const Request& request, const QString& option) {
    if (!request.options.isSet(option)) return Date{};
    const QString form = u"yyyy-MM-dd"_s;
    const QString text = request.options.value(option);
    const QDate day = QDate::fromString(text, form);
    if (day.isValid() && day.toString(form) == text) return StrToDate(text, form);
    return wrongUsage(qtTrId("CliBadDate").arg(option, text));
}

namespace {

constexpr int mostDays = 36525; ///< a hundred years; more shows nothing more

tl::expected<std::optional<int>, Failure> lastOption(const Request& request) {
    if (!request.options.isSet(u"last"_s)) return std::nullopt;
    const QString text = request.options.value(u"last"_s);
    const int days = text.toInt(); // 0 for what is no number
    if (QString::number(days) != text || days < 1 || days > mostDays)
        return wrongUsage(qtTrId("CliBadDays").arg(text).arg(mostDays));
    if (request.options.isSet(u"from"_s)) return wrongUsage(qtTrId("CliLastAndFrom"));
    return days;
}

} // namespace

tl::expected<DayRange, Failure> dayRange(const Request& request) {
    const auto from = dayOption(request, u"from"_s);
    if (!from) return tl::unexpected(from.error());
    const auto to = dayOption(request, u"to"_s);
    if (!to) return tl::unexpected(to.error());
    if (*from && *to && **from > **to) return wrongUsage(qtTrId("CliFromAfterTo"));
    const auto last = lastOption(request);
    if (!last) return tl::unexpected(last.error());
    return DayRange{*from, *to, *last};
}

tl::expected<ViewSelection, Failure> viewOption(const Request& request) {
    const bool am = request.options.isSet(u"am"_s);
    const bool pm = request.options.isSet(u"pm"_s);
    if (am && pm) return wrongUsage(qtTrId("CliAmAndPm"));
    if (am) return ViewSelection::amOnly;
    return pm ? ViewSelection::pmOnly : ViewSelection::viewAll;
}

Period periodOf(const DayRange& days, const ReadingList& readings, const Clock& clock) {
    DisplayPeriod period{std::chrono::floor<Instant::duration>(clock.now())};
    period.setCurrentReadingTimePeriod(readings);
    const Period data = period.getDataPeriod();
    if (days.last) return days.to ? lastDays(*days.to, *days.last) : period.lastDaysOfData(*days.last);
    // An open end is a day that the data reach to, or the other end where they do not reach it.
    const Instant begin = days.from.value_or(std::min(data.begin, days.to.value_or(data.begin)));
    const Instant end = days.to.value_or(std::max(data.end, begin));
    return {DateToDayBoundary(begin, true), DateToDayBoundary(end, false)};
}

} // namespace zel::cli

#include "cli/PeriodOptions.h"

#include "analysis/DisplayPeriod.h"

#include <QDate>

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

tl::expected<DayRange, Failure> dayRange(const Request& request) {
    const auto from = dayOption(request, u"from"_s);
    if (!from) return tl::unexpected(from.error());
    const auto to = dayOption(request, u"to"_s);
    if (!to) return tl::unexpected(to.error());
    if (*from && *to && **from > **to) return wrongUsage(qtTrId("CliFromAfterTo"));
    return DayRange{*from, *to};
}

Period periodOf(const DayRange& days, const ReadingList& readings, const Clock& clock) {
    DisplayPeriod period{std::chrono::floor<Instant::duration>(clock.now())};
    period.setCurrentReadingTimePeriod(readings);
    const Period data = period.getDataPeriod();
    period.setTimePeriod(days.from.value_or(data.begin), days.to.value_or(data.end));
    return period.getTimePeriod();
}

} // namespace zel::cli

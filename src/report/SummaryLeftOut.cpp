#include "report/SummaryLeftOut.h"

#include "analysis/Summary.h"
#include "report/FieldText.h"
#include "report/SummaryBoxes.h"
#include "report/SummaryType.h"
#include "report/TrendPage.h"
#include "store/ManualReading.h"

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostHowToRead = 3;
constexpr qsizetype mostOfReason = 200; ///< more than a line has room for

QString excludedText(const ReadingModel& reading, const ReportSource& report) {
    const QString reason = describeReason(reading.exclusion.simplified()).left(mostOfReason);
    return qtTrId("summaryExcluded")
        .arg(reading.strDisplayDate(report.settings), reading.strDisplayTime(report.settings))
        .arg(reading.sys)
        .arg(reading.dia)
        .arg(reason.isEmpty() ? qtTrId("summaryNoReason") : reason);
}

/// Those of the period and those of the measuring week, which may begin before it, the newest first.
std::vector<const ReadingModel*> namedReadings(const ReportSource& report) {
    const MeasuringWeek week = summaryWeek(report);
    auto named = excludedReadings(report.readings, report.selection.period);
    for (const ReadingModel& reading : report.readings) {
        const bool isOfWeek = reading.isExcluded() && !reading.isUndated() && week.begin <= reading.day
                              && reading.day <= week.end;
        if (isOfWeek && !report.selection.period.contains(*reading.ReadingDate)) named.push_back(&reading);
    }
    std::ranges::stable_sort(named, std::ranges::greater{},
                             [](const ReadingModel* reading) { return *reading->ReadingDate; });
    return named;
}

/// A reason is cut rather than set smaller.
void drawExcluded(Picture& picture, const ReportSource& report, Rect& left) {
    const auto readings = namedReadings(report);
    const double line = lineHeight(summarySmall);
    const auto room = static_cast<std::size_t>(std::max(0.0, left.height / line));
    const std::size_t shown = readings.size() <= room ? readings.size() : std::max<std::size_t>(room, 1) - 1;
    for (std::size_t i = 0; i < shown; ++i)
        summaryLine(picture, excludedText(*readings[i], report), left, summarySmall);
    if (shown < readings.size())
        summaryLine(picture, qtTrId("summaryMoreExcluded", static_cast<int>(readings.size() - shown)), left,
                    summarySmall);
}

QString countsOf(const ReportSource& report) {
    const ReadingCount count =
        countReadings(report.readings, summarySelection(report.selection.period), isInStatistic);
    const QString left = describeLeftOut(count);
    const auto comments = commentsOfPeriod(report.comments, report.selection.period).size();
    QStringList parts{left.isEmpty() ? qtTrId("summaryNothingLeftOut") : left};
    if (const auto others = static_cast<int>(report.comments.size() - comments); others > 0)
        parts += qtTrId("summaryOtherComments", others);
    QString line = parts.join(qtTrId("; "));
    line.front() =
        line.front().toUpper(); // within a sentence, some languages begin with a word where others count
    return line;
}

/// By the limits that the trend above draws.
QString trendNote(const ReportSource& report) {
    if (!lastDayOf(report.readings, report.selection.period)) return {};
    const auto [shown, hidden] = trendLimitsOf({report.highFrom.sys, report.highFrom.dia});
    QStringList note;
    if (shown.count() > 0) note += qtTrId("summaryTrendLimits").arg(limitsText(shown));
    if (hidden.count() > 0) note += qtTrId("summaryTrendHidden").arg(limitsText(hidden));
    return note.join(u' ');
}

QString howToRead(const ReportSource& report) {
    const QString note = qtTrId("summaryNote").arg(highMark, trendNote(report));
    return (describeHighMark(report.highFrom) + u". "_s + note).simplified();
}

} // namespace

void drawSummaryLeftOut(Picture& picture, const ReportSource& report, const Rect& rect) {
    const QString note = howToRead(report);
    const QStringList lines = wrapped(note, rect.width, summarySmall, mostHowToRead);
    const double height = static_cast<double>(lines.size()) * lineHeight(summarySmall);
    Rect left = summaryBlock(picture, qtTrId("summaryLeftOut"),
                             {rect.x, rect.y + height, rect.width, rect.height - height});
    summaryLine(picture, countsOf(report), left, summaryFont);
    drawExcluded(picture, report, left);
    fieldParagraph(picture, note, {rect.x, rect.y + height}, rect.width, summarySmall, mostHowToRead);
}

} // namespace zel

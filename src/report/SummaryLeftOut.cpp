#include "report/SummaryLeftOut.h"

#include "analysis/Summary.h"
#include "report/FieldText.h"
#include "report/LeftOutReadings.h"
#include "report/SummaryType.h"
#include "report/TrendPage.h"
#include "store/ManualReading.h"

#include <algorithm>
#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostHowToRead = 4;
constexpr qsizetype mostOfReason = 200; ///< more than a line has room for

QString excludedText(const ReadingModel& reading, const ReportSource& report) {
    QString reason = describeReason(reading.exclusion.simplified()).left(mostOfReason);
    if (reason.isEmpty()) reason = qtTrId("summaryNoReason");
    if (reading.isManual) reason = qtTrId("remarkManual") + qtTrId("; ") + reason;
    return qtTrId("summaryExcluded")
        .arg(reading.strDisplayDate(report.settings), reading.strDisplayTime(report.settings))
        .arg(reading.sys)
        .arg(reading.dia)
        .arg(reason);
}

/// Those that the page counts somewhere, the newest first; undated ones it counts as such.
std::vector<const ReadingModel*> namedReadings(const ReportSource& report) {
    constexpr std::array sections{Section::summary};
    auto named = leftOutReadings(report, leftOutScope(sections));
    std::erase_if(named, [](const ReadingModel* reading) { return reading->isUndated(); });
    std::ranges::stable_sort(named, std::ranges::greater{},
                             [](const ReadingModel* reading) { return *reading->ReadingDate; });
    return named;
}

std::size_t linesIn(double height) {
    return static_cast<std::size_t>(std::max(0.0, height / lineHeight(summarySmall)));
}

/// A reason is cut rather than set smaller.
void drawExcluded(Picture& picture, const ReportSource& report, Rect& left) {
    const auto readings = namedReadings(report);
    const std::size_t room = linesIn(left.height);
    const std::size_t shown = readings.size() <= room ? readings.size() : std::max<std::size_t>(room, 1) - 1;
    for (std::size_t i = 0; i < shown; ++i)
        summaryLine(picture, excludedText(*readings[i], report), left, summarySmall);
    if (shown < readings.size())
        summaryLine(picture, qtTrId("summaryMoreExcluded", static_cast<int>(readings.size() - shown)), left,
                    summarySmall);
}

QString countsOf(const ReportSource& report) {
    const ReadingCount count =
        countReadings(report.readings, summarySelection(report.selection.period), isInSummary);
    const QString left = describeLeftOut(count);
    QString line = report.readings.empty() ? qtTrId("summaryNoDated")
                   : left.isEmpty()        ? qtTrId("summaryNothingLeftOut")
                                           : left;
    line.front() =
        line.front().toUpper(); // within a sentence, some languages begin with a word where others count
    return line;
}

/// What is not counted; and what is, but has its mornings and evenings by this computer's clock.
QStringList countLines(const ReportSource& report) {
    QStringList lines{countsOf(report)};
    if (const int others = countOfOtherZone(report.readings, report.selection.period); others > 0)
        lines += qtTrId("summaryOtherZone", others);
    return lines;
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

/// Where what the page cuts stands in full.
QString cutNote(const PagePlace& place) {
    QStringList where;
    if (place.hasComments) where += facts(Section::comment).text();
    if (place.namedIn && !(place.hasComments && place.namedIn == Section::comment))
        where += facts(*place.namedIn).text();
    if (where.isEmpty()) return qtTrId("summaryCut");
    return (place.hasComments ? qtTrId("summaryInFull") : qtTrId("summaryReasonsInFull"))
        .arg(where.join(qtTrId(", ")));
}

QString howToRead(const ReportSource& report, const PagePlace& place) {
    const QString note = qtTrId("summaryNote").arg(highMark, trendNote(report), cutNote(place));
    return (describeHighMark(report.highFrom) + u". "_s + note).simplified();
}

/// What the note below it leaves of the block.
Rect aboveNote(const QString& note, const Rect& rect) {
    const QStringList lines = wrapped(note, rect.width, summarySmall, mostHowToRead);
    const double height = static_cast<double>(lines.size()) * lineHeight(summarySmall);
    return {rect.x, rect.y + height, rect.width, rect.height - height};
}

} // namespace

void drawSummaryLeftOut(Picture& picture, const ReportSource& report, const PagePlace& place,
                        const Rect& rect) {
    const QString note = howToRead(report, place);
    const Rect above = aboveNote(note, rect);
    Rect left = summaryBlock(picture, qtTrId("summaryLeftOut"), above);
    for (const QString& line : countLines(report))
        summaryLine(picture, line, left, summaryFont);
    drawExcluded(picture, report, left);
    fieldParagraph(picture, note, {rect.x, above.y}, rect.width, summarySmall, mostHowToRead);
}

bool namesAllLeftOut(const ReportSource& report, const PagePlace& place, const Rect& rect) {
    const auto named = namedReadings(report);
    const double heading =
        summaryBlockHeight() + static_cast<double>(countLines(report).size()) * lineHeight(summaryFont);
    if (named.size() > linesIn(aboveNote(howToRead(report, place), rect).height - heading)) return false;
    const auto isNamedWhole = [&](const ReadingModel* reading) {
        return std::ranges::find(named, reading) != named.end() && reading->exclusion.size() <= mostOfReason
               && isWhole(excludedText(*reading, report), rect.width, summarySmall);
    };
    return std::ranges::all_of(leftOutReadings(report, place.leftOut), isNamedWhole);
}

} // namespace zel

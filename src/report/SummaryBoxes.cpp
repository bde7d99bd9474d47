#include "report/SummaryBoxes.h"

#include "report/FieldText.h"
#include "report/LimitShares.h"
#include "report/SummaryType.h"

#include <algorithm>
#include <cmath>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

const TextAttribute largeFont{.size = 26, .bold = true};
constexpr double largeShare = 0.46, besideLarge = 10, aboveLines = 2;

QString ruleName(AverageRule rule) {
    switch (rule) {
    case AverageRule::esh: return qtTrId("summaryEsh");
    case AverageRule::nice: return qtTrId("summaryNice");
    case AverageRule::aha: return qtTrId("summaryAha");
    }
    return {};
}

/// The one that was chosen, or the last one of the period.
MeasuringWeek weekOf(const ReportSource& report) {
    auto end = report.weekEnd;
    if (!end) end = lastDayOf(report.readings, report.selection.period);
    return calcMeasuringWeek(report.readings, report.weekRule,
                             end.value_or(LocalZone{}.day(report.selection.period.end)));
}

/// The large number at the left of a block, and lines beside it. \return what is left below
Rect drawLarge(Picture& picture, const QString& text, const QStringList& beside, Rect block) {
    const double height = lineHeight(largeFont);
    const double width = block.width * largeShare;
    block.height -= height;
    summaryFigure(picture, text, {block.x, block.top()}, width, largeFont);
    const double right = block.x + width + besideLarge;
    Rect lines{right, block.y, block.right() - right, block.height + height - aboveLines};
    for (const QString& line : beside)
        summaryLine(picture, line, lines, summaryFont);
    block.height = std::min(block.top(), lines.top()) - block.y;
    return block;
}

QStringList weekHalves(const MeasuringWeek& week) {
    QStringList lines;
    const auto line = [](const PressureMeans& means) { return pressureText(means, {}); };
    if (week.morning.count() > 0) lines += qtTrId("summaryMornings").arg(line(week.morning));
    if (week.evening.count() > 0) lines += qtTrId("summaryEvenings").arg(line(week.evening));
    lines += qtTrId("summaryPulse").arg(week.all.pulse.rounded());
    return lines;
}

/// By the means before they are rounded.
QString thresholdText(const MeasuringWeek& week) {
    const AverageRuleFacts& facts = factsOf(week.rule);
    const QString threshold = u"%1/%2"_s.arg(facts.sysThreshold).arg(facts.diaThreshold);
    const QString words = week.reachesThreshold() ? qtTrId("summaryReached") : qtTrId("summaryBelow");
    return words.arg(threshold, week.all.sys.withTenths(), week.all.dia.withTenths());
}

QString weekCounts(const MeasuringWeek& week) {
    const QString readings = qtTrId("reportReadings", static_cast<int>(week.readingsUsed()));
    QString counted = qtTrId("summaryOnDays", week.daysUsed).arg(readings);
    if (week.readingsLeftOut == 0) return counted;
    return counted + u"; "_s + qtTrId("summaryFirstDay", week.readingsLeftOut);
}

QString completeText(const MeasuringWeek& week) {
    return week.isComplete() ? qtTrId("summaryComplete")
                             : qtTrId("summaryIncomplete").arg(describeMissing(week));
}

QString percentText(int count, std::uint64_t total) {
    return total == 0 ? u"\u2013"_s
                      : QString::number(std::lround(100.0 * count / static_cast<double>(total))) + u" %"_s;
}

QString highHeading(const LimitPair& limits) {
    const QString words = describe(limits);
    return words.isEmpty() ? describeHighMark(limits) : qtTrId("summaryHigh").arg(words);
}

/// Of the kinds of monitor that there are readings of, and how many no monitor examined.
QStringList flaggedTexts(const SummaryFigures& figures) {
    const FlaggedReadings both{figures.afib.flagged + figures.pad.flagged,
                               figures.afib.examined + figures.pad.examined};
    if (both.examined == 0) return {qtTrId("summaryNotExamined")};
    const QString kind = figures.pad.examined == 0    ? u"AFib"_s
                         : figures.afib.examined == 0 ? u"PAD"_s
                                                      : u"AFib, PAD"_s;
    const auto others = static_cast<int>(figures.all.count()) - both.examined;
    QStringList texts{qtTrId("summaryFlagged", both.examined).arg(kind).arg(both.flagged)};
    if (others > 0) texts += qtTrId("summaryOthers", others);
    return texts;
}

} // namespace

void drawSummaryWeek(Picture& picture, const ReportSource& report, const Rect& rect) {
    const MeasuringWeek week = weekOf(report);
    const QString days = summaryDay(week.begin, report) + u" \u2013 "_s + summaryDay(week.end, report);
    Rect left = summaryBlock(picture, qtTrId("summaryWeek").arg(ruleName(week.rule), days), rect);
    if (week.readingsUsed() > 0) {
        const LimitPair threshold{factsOf(week.rule).sysThreshold, factsOf(week.rule).diaThreshold};
        left = drawLarge(picture, pressureText(week.all, threshold), weekHalves(week), left);
        summaryLine(picture, thresholdText(week), left, summaryBold);
    } else {
        summaryLine(picture, qtTrId("summaryNoWeek"), left, summaryFont);
    }
    summaryLine(picture, completeText(week), left, week.isComplete() ? summaryFont : summaryBold);
    summaryLine(picture, weekCounts(week), left, summaryFont);
}

void drawSummaryShares(Picture& picture, const ReportSource& report, const SummaryFigures& figures,
                       const Rect& rect) {
    const auto total = static_cast<int>(figures.all.count());
    Rect left = summaryBlock(picture, highHeading(report.highFrom), rect);
    if (report.highFrom == LimitPair{}) {
        left.height -= lineHeight(largeFont);
    } else {
        const int high = countHighReadings(report.readings, report.selection.period, report.highFrom);
        left = drawLarge(picture, percentText(high, figures.all.count()),
                         {qtTrId("summaryHighOf", total).arg(high), qtTrId("summaryEither")}, left);
    }
    left.height -= lineHeight(summaryFont);
    for (const QString& text : flaggedTexts(figures))
        summaryLine(picture, text, left, summaryFont);
}

} // namespace zel

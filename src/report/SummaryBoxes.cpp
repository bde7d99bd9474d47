#include "report/SummaryBoxes.h"

#include "report/FieldText.h"
#include "report/LimitShares.h"
#include "report/SummaryType.h"

#include <algorithm>

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

/// Beside a large number.
struct BesideLine {
    QString text;
    bool isBold = false;
};
using BesideLines = std::vector<BesideLine>;

/// The large number at the left of a block, and lines beside it. \return what is left below
Rect drawLarge(Picture& picture, const QString& text, const BesideLines& beside, Rect block) {
    const double height = lineHeight(largeFont);
    const double width = block.width * largeShare;
    block.height -= height;
    summaryFigure(picture, text, {block.x, block.top()}, width, largeFont);
    const double right = block.x + width + besideLarge;
    Rect lines{right, block.y, block.right() - right, block.height + height - aboveLines};
    for (const BesideLine& line : beside)
        summaryLine(picture, line.text, lines, line.isBold ? summaryBold : summaryFont);
    block.height = std::min(block.top(), lines.top()) - block.y;
    return block;
}

LimitPair thresholdOf(const MeasuringWeek& week) {
    return {factsOf(week.rule).sysThreshold, factsOf(week.rule).diaThreshold};
}

BesideLines weekHalves(const MeasuringWeek& week) {
    BesideLines lines;
    const LimitPair threshold = thresholdOf(week);
    const auto add = [&](const QString& words, const PressureMeans& means) {
        if (means.count() > 0)
            lines.push_back({words.arg(pressureText(means, threshold)), isAnyHigh(means, threshold)});
    };
    add(qtTrId("summaryMornings"), week.morning);
    add(qtTrId("summaryEvenings"), week.evening);
    if (week.all.pulse.count() > 0) lines.push_back({qtTrId("summaryPulse").arg(week.all.pulse.rounded())});
    return lines;
}

/// By the means before they are rounded.
QString thresholdText(const MeasuringWeek& week) {
    const auto [sys, dia] = thresholdOf(week);
    const QString words = week.reachesThreshold() ? qtTrId("summaryReached") : qtTrId("summaryBelow");
    return words.arg(u"%1/%2"_s.arg(sys).arg(dia), week.all.sys.withTenthsBeside(sys),
                     week.all.dia.withTenthsBeside(dia));
}

QString weekCounts(const MeasuringWeek& week) {
    const QString readings = qtTrId("reportReadings", static_cast<int>(week.readingsUsed()));
    QString counted = qtTrId("summaryOnDays", week.daysUsed).arg(readings);
    if (week.readingsLeftOut == 0) return counted;
    return counted + qtTrId("; ") + qtTrId("summaryFirstDay", week.readingsLeftOut);
}

/// What is to be known of the week's readings beside their number.
QString weekRemarks(const MeasuringWeek& week, const ReadingList& readings) {
    const auto typed = std::ranges::count_if(readings, [&](const ReadingModel& reading) {
        return reading.isManual && !reading.isExcluded() && !reading.isUndated() && week.begin <= reading.day
               && reading.day <= week.end;
    });
    QStringList remarks;
    if (week.excluded > 0) remarks += qtTrId("summaryWeekExcluded", week.excluded);
    if (week.unmeasured > 0) remarks += qtTrId("summaryWeekUnmeasured", week.unmeasured);
    if (typed > 0) remarks += qtTrId("summaryWeekTyped", static_cast<int>(typed));
    return remarks.join(qtTrId("; "));
}

QString completeText(const MeasuringWeek& week) {
    return week.isComplete() ? qtTrId("summaryComplete")
                             : qtTrId("summaryIncomplete").arg(describeMissing(week));
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
    const QString kind = figures.pad.examined == 0    ? qtTrId("afib")
                         : figures.afib.examined == 0 ? qtTrId("pad")
                                                      : qtTrId("afib") + qtTrId(", ") + qtTrId("pad");
    const auto others = static_cast<int>(figures.all.count()) - both.examined;
    QStringList texts{qtTrId("summaryFlagged", both.examined).arg(kind).arg(both.flagged)};
    if (others > 0) texts += qtTrId("summaryOthers", others);
    return texts;
}

} // namespace

MeasuringWeek summaryWeek(const ReportSource& report) {
    if (!isAnyDated(report.readings)) return calcMeasuringWeek(report.readings, report.weekRule);
    const LocalZone zone;
    const Period& period = report.selection.period;
    const DayNumber first = zone.day(period.begin);
    auto end = report.weekEnd;
    if (!end || *end < first) end = lastDayOf(report.readings, period);
    return calcMeasuringWeek(report.readings, report.weekRule,
                             end.value_or(std::max(first, zone.day(period.end))));
}

void drawSummaryWeek(Picture& picture, const ReportSource& report, const Rect& rect) {
    const MeasuringWeek week = summaryWeek(report);
    const QString days = week.end == noDay
                             ? QString()
                             : summaryDay(week.begin, report) + u" \u2013 "_s + summaryDay(week.end, report);
    Rect left = summaryBlock(picture, qtTrId("summaryWeek").arg(ruleName(week.rule), days).trimmed(), rect);
    if (week.readingsUsed() > 0) {
        left = drawLarge(picture, pressureText(week.all, thresholdOf(week)), weekHalves(week), left);
        summaryLine(picture, thresholdText(week), left, summaryBold);
    } else {
        const bool isAny = week.readingsLeftOut + week.excluded > 0;
        summaryLine(picture, isAny ? qtTrId("summaryNoneCountsYet") : qtTrId("summaryNoWeek"), left,
                    summaryFont);
    }
    summaryLine(picture, completeText(week), left, week.isComplete() ? summaryFont : summaryBold);
    summaryLine(picture, weekCounts(week), left, summaryFont);
    if (const QString remarks = weekRemarks(week, report.readings); !remarks.isEmpty())
        summaryLine(picture, remarks, left, summaryFont);
    if (week.ofOtherZone > 0)
        summaryLine(picture, qtTrId("summaryWeekZone", week.ofOtherZone), left, summaryFont);
}

void drawSummaryShares(Picture& picture, const ReportSource& report, const SummaryFigures& figures,
                       const Rect& rect) {
    const auto total = static_cast<int>(figures.all.count());
    Rect left = summaryBlock(picture, highHeading(report.highFrom), rect);
    if (report.highFrom == LimitPair{}) {
        left.height -= lineHeight(largeFont);
    } else {
        const int high = countHighReadings(report.readings, report.selection.period, report.highFrom);
        BesideLines beside{{qtTrId("summaryHighOf", total).arg(high)}};
        if (report.highFrom.sys > 0 && report.highFrom.dia > 0) beside.push_back({qtTrId("summaryEither")});
        const QString share = total == 0 ? u"\u2013"_s : percentText(high, total);
        left = drawLarge(picture, share, beside, left);
    }
    left.height -= lineHeight(summaryFont);
    for (const QString& text : flaggedTexts(figures))
        summaryLine(picture, text, left, summaryFont);
    if (figures.typedIn > 0)
        summaryLine(picture, qtTrId("summaryTyped", total).arg(figures.typedIn), left, summaryFont);
}

} // namespace zel

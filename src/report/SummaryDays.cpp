#include "report/SummaryDays.h"

#include "analysis/Summary.h"
#include "report/FieldText.h"
#include "report/SummaryType.h"

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr double aboveRow = 0.25;

void drawHalf(Picture& picture, const PressureMeans& means, const LimitPair& limits, Point at, double width) {
    if (means.count() == 0) return summaryText(picture, u"\u2013"_s, at, width, summaryFont);
    QString text = pressureText(means, limits);
    if (means.count() > 1) text += u" (%1)"_s.arg(means.count());
    summaryFigure(picture, text, at, width, isAnyHigh(means, limits) ? summaryBold : summaryFont);
}

} // namespace

double summaryDaysHeight() {
    return summaryBlockHeight() + lineHeight(summarySmall) + aboveRow
           + lastDaysOnSummary * (lineHeight(summaryFont) + aboveRow);
}

void drawSummaryDays(Picture& picture, const ReportSource& report, const Rect& rect) {
    const std::vector<DayHalves> days = calcLastDays(report.readings, report.selection.period);
    const int total = days.empty() ? lastDaysOnSummary : static_cast<int>(days.size());
    Rect left = summaryBlock(picture, qtTrId("summaryLastDays", total), rect);
    if (days.empty()) return summaryLine(picture, qtTrId("summaryNone"), left, summaryFont);
    const double dayWidth = left.width * 0.3, halfWidth = (left.width - dayWidth) / 2;
    const auto row = [&](const TextAttribute& font) {
        left.height -= lineHeight(font) + aboveRow;
        return left.top();
    };
    const auto x = [&](int half) { return left.x + dayWidth + half * halfWidth; };
    const double head = row(summarySmall);
    summaryText(picture, qtTrId("summaryMorning"), {x(0), head}, halfWidth, summarySmall);
    summaryText(picture, qtTrId("summaryEvening"), {x(1), head}, halfWidth, summarySmall);
    const LimitPair limits = report.highFrom;
    for (const DayHalves& day : days) {
        const double y = row(summaryFont);
        summaryText(picture, summaryDay(day.day, report), {left.x, y}, dayWidth - 4, summaryFont);
        drawHalf(picture, day.morning, limits, {x(0), y}, halfWidth - 4);
        drawHalf(picture, day.evening, limits, {x(1), y}, halfWidth);
    }
}

} // namespace zel

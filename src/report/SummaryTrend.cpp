#include "report/SummaryTrend.h"

#include "analysis/Summary.h"
#include "chart/DrawTrend.h"
#include "chart/TimeScale.h"
#include "report/CommentLook.h"
#include "report/FieldText.h"
#include "report/GraphPage.h"
#include "report/SummaryType.h"

#include <algorithm>

namespace zel {

namespace {

constexpr double barHeight = 3, leastBar = 1.5, betweenBars = 0.75, belowBar = 1, betweenNumbers = 2;

double stripHeight() { return barHeight + belowBar + lineHeight(summarySmall) + 1; }

/// What is taken of the line of numbers.
struct TakenRoom {
    double from, to;
};

/// Where the comment's whole days lie, as far as the plot goes.
TakenRoom daysOf(const CommentModel& comment, const TimeScale& time) {
    const double right = time.left + time.width;
    const Instant begin = *(isNilDate(comment.beginDate) ? comment.endDate : comment.beginDate);
    const Instant end = *(isNilDate(comment.endDate) ? comment.beginDate : comment.endDate);
    const auto x = [&](Instant date, bool isBegin) {
        return std::clamp(time.calcXPos(DateToDayBoundary(date, isBegin)), time.left, right);
    };
    const double from = x(std::min(begin, end), true), to = x(std::max(begin, end), false);
    return {std::min(from, right - leastBar), std::max(to, from + leastBar)};
}

/// \return whether the number has room beside those that are there
bool take(std::vector<TakenRoom>& taken, const TakenRoom& wanted) {
    const auto isFree = [&](const TakenRoom& one) {
        return wanted.to + betweenNumbers <= one.from || one.to + betweenNumbers <= wanted.from;
    };
    if (!std::ranges::all_of(taken, isFree)) return false;
    taken.push_back(wanted);
    return true;
}

void drawComments(Picture& picture, const ReportSource& report,
                  const std::vector<const CommentModel*>& comments, const TimeScale& time, double top) {
    std::vector<TakenRoom> taken;
    for (const CommentModel* comment : comments) {
        const auto [from, to] = daysOf(*comment, time);
        const double length = std::max(leastBar, to - from - betweenBars);
        picture.emplace_back(FillRect{{from, top - barHeight, length, barHeight}, Qt::black});
        const QString number = commentNumber(report.comments, *comment);
        const double width = textSize(number, summarySmall).width;
        const double x = std::clamp(from, time.left, time.left + time.width - width);
        if (!take(taken, {x, x + width})) continue;
        const double y = top - barHeight - belowBar - lineHeight(summarySmall);
        summaryText(picture, number, {x, y}, width + 1, summarySmall);
    }
}

} // namespace

void drawSummaryTrend(Picture& picture, const ReportSource& report, const Rect& rect) {
    const Period& period = report.selection.period;
    const auto comments = commentsOfPeriod(report.comments, period);
    Rect left = summaryBlock(
        picture, comments.empty() ? qtTrId("summaryTrend") : qtTrId("summaryTrendComments"), rect);
    if (!lastDayOf(report.readings, period))
        return summaryLine(picture, qtTrId("summaryNone"), left, summaryFont);
    const double strip = comments.empty() ? 0 : stripHeight();
    const ReadingSelection selection = summarySelection(period);
    TrendLayout trend = drawTrend({.trend = calcTrendSeries(report.readings, selection, false),
                                   .comments = CommentList(),
                                   .selection = selection,
                                   .sysStandard = report.highFrom.sys,
                                   .diaStandard = report.highFrom.dia,
                                   .forPrint = true,
                                   .isFitted = true,
                                   .totalRect = {left.x, left.y + strip, left.width, left.height - strip}},
                                  LocalZone());
    append(picture, std::move(trend.picture));
    const TimeScale time{period.begin, period.end, trend.plot.x, trend.plot.width};
    drawComments(picture, report, comments, time, left.y + strip - 1);
}

} // namespace zel

#include "report/SummaryTrend.h"

#include "analysis/CommentDays.h"
#include "analysis/Summary.h"
#include "chart/DrawTrend.h"
#include "chart/TimeScale.h"
#include "chart/TrendCurves.h"
#include "report/CommentLook.h"
#include "report/FieldText.h"
#include "report/GraphPage.h"
#include "report/SummaryType.h"

#include <algorithm>
#include <tuple>

namespace zel {

namespace {

constexpr double barHeight = 3, betweenRows = 1.5, tickWidth = 1, leastBar = 1.5, belowBars = 1;
constexpr double besideNumber = 1.5, betweenNumbers = 2, numberFrame = 0.4;
constexpr std::size_t mostBarRows = 3;
const QColor barColor(170, 170, 170);

using BarRow = std::vector<CommentDays>;

/// Of each comment: the first row in which its days are free; the last one where they are so in none.
std::vector<std::size_t> barRowsOf(const std::vector<const CommentModel*>& comments) {
    std::vector<BarRow> taken(mostBarRows);
    std::vector<std::size_t> rows;
    rows.reserve(comments.size());
    for (const CommentModel* comment : comments) {
        const CommentDays days = commentDays(*comment).value_or(CommentDays());
        const auto isFree = [&](const BarRow& row) {
            return std::ranges::none_of(row, [&](const CommentDays& other) {
                return days.begin <= other.end && other.begin <= days.end;
            });
        };
        const auto row = std::ranges::find_if(taken.begin(), taken.end() - 1, isFree);
        row->push_back(days);
        rows.push_back(static_cast<std::size_t>(row - taken.begin()));
    }
    return rows;
}

double barsHeight(const std::vector<std::size_t>& rows) {
    return (barHeight + betweenRows) * static_cast<double>(std::ranges::max(rows) + 1);
}

double stripHeight(const std::vector<std::size_t>& rows) {
    return barsHeight(rows) + belowBars + lineHeight(summarySmall) + 1;
}

/// What is taken of the line of numbers.
struct TakenRoom {
    double from, to;
};

/// Of the comment's whole days, as far as the plot goes.
Rect barOf(const CommentModel& comment, const TimeScale& time, double y) {
    const CommentDays days = commentDays(comment).value_or(CommentDays());
    const TrendSpan span = trendSpan(time, days.begin, days.end, LocalZone());
    const double from = std::min(span.from, time.left + time.width - leastBar);
    return {from, y, std::max(leastBar, span.to - from), barHeight};
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

/// Begin and end of each are seen, also where others lie over it.
void drawBars(Picture& picture, const std::vector<Rect>& bars) {
    for (const Rect& bar : bars)
        picture.emplace_back(FillRect{bar, barColor});
    for (const Rect& bar : bars)
        for (const double x : {bar.x, bar.right() - tickWidth})
            picture.emplace_back(FillRect{{x, bar.y, tickWidth, bar.height}, Qt::black});
}

/// In a frame, unlike the days of the axis above.
void drawNumber(Picture& picture, const QString& number, const Rect& frame) {
    picture.emplace_back(Curve{{{frame.x, frame.y},
                                {frame.right(), frame.y},
                                {frame.right(), frame.top()},
                                {frame.x, frame.top()},
                                {frame.x, frame.y}},
                               numberFrame,
                               Qt::black,
                               {}});
    summaryText(picture, number, {frame.x + besideNumber, frame.y}, frame.width, summarySmall);
}

/// Below the bars. \return how many comments have no room for their number
int drawNumbers(Picture& picture, const ReportSource& report,
                const std::vector<const CommentModel*>& comments, const std::vector<Rect>& bars,
                const TimeScale& time, double y) {
    std::vector<TakenRoom> taken;
    for (std::size_t i = 0; i < comments.size(); ++i) {
        const QString number = commentNumber(report.comments, *comments[i]);
        const double width = textSize(number, summarySmall).width + 2 * besideNumber;
        const double x = std::clamp(bars[i].x, time.left, time.left + time.width - width);
        if (take(taken, {x, x + width})) drawNumber(picture, number, {x, y, width, lineHeight(summarySmall)});
    }
    return static_cast<int>(comments.size() - taken.size());
}

/// \return as drawNumbers()
int drawComments(Picture& picture, const ReportSource& report,
                 const std::vector<const CommentModel*>& comments, const std::vector<std::size_t>& rows,
                 const TimeScale& time, double top) {
    std::vector<Rect> bars;
    bars.reserve(comments.size());
    for (std::size_t i = 0; i < comments.size(); ++i) {
        const double below = (barHeight + betweenRows) * static_cast<double>(rows[i]) + barHeight;
        bars.push_back(barOf(*comments[i], time, top - below));
    }
    drawBars(picture, bars);
    const double y = top - barsHeight(rows) - belowBars - lineHeight(summarySmall) + betweenRows;
    return drawNumbers(picture, report, comments, bars, time, y);
}

QString headingOf(std::size_t comments, int withoutNumber) {
    if (comments == 0) return qtTrId("summaryTrend");
    return withoutNumber > 0 ? qtTrId("summaryTrendNumberless", withoutNumber)
                             : qtTrId("summaryTrendComments");
}

} // namespace

void drawSummaryTrend(Picture& picture, const ReportSource& report, const Rect& rect) {
    const Period& period = report.selection.period;
    const auto comments = commentsOfPeriod(report.comments, period);
    if (!lastDayOf(report.readings, period)) {
        Rect left = summaryBlock(picture, headingOf(comments.size(), 0), rect);
        return summaryLine(picture, qtTrId("summaryNone"), left, summaryFont);
    }
    const Rect left{rect.x, rect.y, rect.width, rect.height - summaryBlockHeight()};
    const auto rows = barRowsOf(comments);
    const double strip = comments.empty() ? 0 : stripHeight(rows);
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
    const int withoutNumber =
        comments.empty() ? 0 : drawComments(picture, report, comments, rows, time, left.y + strip - 1);
    std::ignore = summaryBlock(picture, headingOf(comments.size(), withoutNumber), rect);
}

} // namespace zel

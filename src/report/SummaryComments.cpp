#include "report/SummaryComments.h"

#include "analysis/BeforeAndSince.h"
#include "analysis/Summary.h"
#include "report/CommentLook.h"
#include "report/FieldText.h"
#include "report/SummaryType.h"

#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr double belowComment = 3;
constexpr int mostMeasuredLines = 3;
/// Of a comment's text: fewer where not all comments fit.
constexpr std::array textLines{8, 4, 2};

/// What a comment says, in the lines that it takes.
struct SummaryComment {
    QString head;
    QStringList text;
    QStringList measured;

    [[nodiscard]] double height() const {
        return lineHeight(summaryBold) + static_cast<double>(text.size()) * lineHeight(summaryFont)
               + static_cast<double>(measured.size()) * lineHeight(summarySmall) + belowComment;
    }
};

QString daysText(const CommentModel& comment, const ReportSource& report) {
    const QString begin = summaryDay(comment.beginDay, report), end = summaryDay(comment.endDay, report);
    return begin == end ? begin : begin + u" \u2013 "_s + end;
}

/// Its end is in an ellipsis where the text goes on.
QStringList firstLines(const QString& text, double width, int most) {
    QStringList lines = wrapped(printable(text).simplified(), width, summaryFont, most + 1);
    if (lines.size() <= most) return lines;
    lines.removeLast();
    lines.last() = elided(lines.last() + u'\u2026', width, summaryFont);
    return lines;
}

std::vector<SummaryComment> layOut(const ReportSource& report,
                                   const std::vector<const CommentModel*>& comments, double width,
                                   int mostLines) {
    const DayMeans means(report.readings);
    std::vector<SummaryComment> items;
    items.reserve(comments.size());
    for (const CommentModel* comment : comments) {
        const QString change = describe(calcBeforeAndSince(means, report.comments, *comment));
        items.push_back({commentNumber(report.comments, *comment) + u"   "_s + daysText(*comment, report),
                         firstLines(comment->comment, width, mostLines),
                         wrapped(change, width, summarySmall, mostMeasuredLines)});
    }
    return items;
}

/// How many of them fit; where not all do, a line says how many more there are.
std::size_t fitting(const std::vector<SummaryComment>& items, double height) {
    double taken = 0;
    std::size_t count = 0;
    const double forRest = lineHeight(summaryBold);
    std::size_t withRest = 0;
    for (; count < items.size(); ++count) {
        if (taken + forRest <= height) withRest = count;
        taken += items[count].height();
        if (taken > height) return withRest;
    }
    return count;
}

void drawItem(Picture& picture, const SummaryComment& item, Rect& left) {
    summaryLine(picture, item.head, left, summaryBold);
    for (const QString& line : item.text)
        summaryLine(picture, line, left, summaryFont);
    for (const QString& line : item.measured)
        summaryLine(picture, line, left, summarySmall);
    left.height -= belowComment;
}

} // namespace

void drawSummaryComments(Picture& picture, const ReportSource& report, const Rect& rect) {
    const auto comments = commentsOfPeriod(report.comments, report.selection.period);
    const auto total = static_cast<int>(comments.size());
    Rect left = summaryBlock(picture, qtTrId("summaryComments"), rect);
    if (comments.empty()) return summaryLine(picture, qtTrId("summaryNoComments"), left, summaryFont);
    std::vector<SummaryComment> items;
    std::size_t shown = 0;
    for (const int lines : textLines) {
        items = layOut(report, comments, left.width, lines);
        shown = fitting(items, left.height);
        if (shown == items.size()) break;
    }
    for (std::size_t i = 0; i < shown; ++i)
        drawItem(picture, items[i], left);
    if (const int more = total - static_cast<int>(shown); more > 0)
        summaryLine(picture, qtTrId("summaryMoreComments", more), left, summaryBold);
}

} // namespace zel

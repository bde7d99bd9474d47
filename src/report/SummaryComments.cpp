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
constexpr int mostMeasuredLines = 5;
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

struct CommentSource {
    const ReportSource& report;
    DayMeans means;
    double width; ///< of a line
};

SummaryComment layOut(const CommentSource& source, const CommentModel& comment, int mostLines) {
    const QString number = commentNumber(source.report.comments, comment);
    const QString change = describe(calcBeforeAndSince(source.means, source.report.comments, comment));
    return {number + u"   "_s + daysText(comment, source.report),
            firstLines(comment.comment, source.width, mostLines),
            wrapped(change, source.width, summarySmall, mostMeasuredLines)};
}

/// Those that fit; where not all do, there is room of \p forRest below them.
std::vector<SummaryComment> fitting(const CommentSource& source,
                                    const std::vector<const CommentModel*>& comments, double height,
                                    int mostLines, double forRest) {
    std::vector<SummaryComment> items;
    std::size_t besideRest = 0;
    for (const CommentModel* comment : comments) {
        if (forRest <= height) besideRest = items.size();
        items.push_back(layOut(source, *comment, mostLines));
        height -= items.back().height();
        if (height >= 0) continue;
        items.resize(besideRest);
        break;
    }
    return items;
}

void drawItem(Picture& picture, const SummaryComment& item, Rect& left) {
    summaryLine(picture, item.head, left, summaryBold);
    for (const QString& line : item.text)
        summaryLine(picture, line, left, summaryFont);
    for (const QString& line : item.measured)
        summaryLine(picture, line, left, summarySmall);
    left.height -= belowComment;
}

QString noCommentsText(int others) {
    const QString words = qtTrId("summaryNoComments");
    return others == 0 ? words : words + qtTrId("; ") + qtTrId("summaryOnOtherDays", others);
}

/// What the block does not show: comments of the period that had no room, and those of other days.
QString restText(int more, int others) {
    QStringList rest;
    if (more > 0) rest += qtTrId("summaryMoreComments", more);
    if (others > 0) rest += qtTrId("summaryOtherComments", others);
    return rest.join(qtTrId("; "));
}

} // namespace

void drawSummaryComments(Picture& picture, const ReportSource& report, const Rect& rect) {
    const auto comments = commentsOfPeriod(report.comments, report.selection.period);
    const auto others = static_cast<int>(report.comments.size() - comments.size());
    Rect left = summaryBlock(picture, qtTrId("summaryComments"), rect);
    if (comments.empty()) return summaryLine(picture, noCommentsText(others), left, summaryFont);
    const CommentSource source{report, DayMeans(report.readings), left.width};
    const double forRest = lineHeight(summaryBold), forOthers = others > 0 ? forRest : 0;
    std::vector<SummaryComment> items;
    for (const int lines : textLines) {
        items = fitting(source, comments, left.height - forOthers, lines, forRest - forOthers);
        if (items.size() == comments.size()) break;
    }
    for (const SummaryComment& item : items)
        drawItem(picture, item, left);
    const QString rest = restText(static_cast<int>(comments.size() - items.size()), others);
    if (!rest.isEmpty()) summaryLine(picture, rest, left, summaryBold);
}

} // namespace zel

#include "report/DrawComment.h"

#include "analysis/BeforeAndSince.h"
#include "report/CommentLook.h"
#include "report/FieldText.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

const TextAttribute smallFont{};
constexpr double barWidth = 6;

double itemHeight() { return (2 * lineHeight(smallFont) + 3 * DrawComment::yMargin) * 2; }

QString day(DayNumber number, const SettingModel& settings) {
    return isUndatedDay(number) ? qtTrId("n.a") : dayText(number, settings.getDateFormat());
}

QString days(const CommentModel& comment, const SettingModel& settings) {
    QString period = day(comment.beginDay, settings) + u" \u2013 "_s + day(comment.endDay, settings);
    const bool isKnown = !isUndatedDay(comment.beginDay) && comment.beginDay <= comment.endDay;
    if (!isKnown) return period;
    const int total = comment.endDay - comment.beginDay + 1;
    return period + u"  ("_s + (qtTrId("reportDays", total)) + u')';
}

/// What was measured before and since; empty for a comment without a begin.
QString measured(const ReportSource& report, const DayMeans& means, const CommentModel& comment) {
    const QString change = describe(calcBeforeAndSince(means, report.comments, comment));
    return change.isEmpty() ? QString() : qtTrId("reportMeasured").arg(change);
}

/// How many of the earliest comments have no room in a report.
std::size_t withoutRoom(const CommentList& comments) {
    std::size_t printed = 0;
    qsizetype characters = 0;
    for (auto comment = comments.rbegin(); comment != comments.rend(); ++comment, ++printed) {
        characters += std::min((*comment)->comment.size(), longestPrinted);
        if (printed == mostPrintedComments || characters > mostCommentCharacters) break;
    }
    return comments.size() - printed;
}

} // namespace

int DrawComment::iItemsPerPage(const Rect& rect) {
    return std::max(1, static_cast<int>(std::ceil(rect.height / itemHeight())));
}

CommentPages layOutComments(const ReportSource& report, const Rect& rect) {
    // As many as are counted fit: the last one would else stand in the footer.
    const double least = rect.height / DrawComment::iItemsPerPage(rect);
    const double width = rect.width - barWidth - 2 * DrawComment::xMargin;
    CommentPages layout{.leftOut = withoutRoom(report.comments), .lines = {}, .pages = {}};
    if (layout.leftOut > 0)
        layout.lines.push_back(
            wrapped(qtTrId("reportCommentsLeftOut").arg(mostPrintedComments).arg(mostCommentCharacters),
                    width, smallFont));
    const DayMeans means(report.readings);
    for (const auto& comment : std::span(report.comments).subspan(layout.leftOut)) {
        layout.lines.push_back(wrapped(printable(comment->comment), width, smallFont)
                               + wrapped(measured(report, means, *comment), width, smallFont));
        layout.isAnyUndated |= isUndatedDay(comment->beginDay) || isUndatedDay(comment->endDay);
    }
    std::vector<TextItem> items;
    items.reserve(layout.lines.size());
    for (const QStringList& lines : layout.lines)
        items.push_back({static_cast<int>(lines.size()), least});
    layout.pages = textPages(items, rect.height, lineHeight(smallFont), 2 * DrawComment::yMargin);
    return layout;
}

void DrawComment::drawRect(Picture& picture, const Rect& rect, int page) const {
    picture.emplace_back(FillRect{rect, Qt::white});
    const auto index = static_cast<std::size_t>(page) - 1;
    if (index >= layout.pages.size()) return; // the frame of a list that has none
    double top = rect.top();
    for (const TextPart& part : layout.pages[index]) {
        top -= part.height;
        drawItem(picture, {rect.x, top, rect.width, part.height}, part);
    }
}

void DrawComment::drawItem(Picture& picture, const Rect& item, const TextPart& part) const {
    const Rect box{item.x + barWidth + xMargin, item.y, item.width - barWidth - 2 * xMargin, item.height};
    if (layout.leftOut > 0 && part.item == 0) return drawNote(picture, box, part);
    const std::size_t number = part.item + layout.leftOut - (layout.leftOut > 0 ? 1 : 0);
    const CommentModel& comment = *report.comments[number];
    const QColor color = getCommentColor(comment.degree, true);
    picture.emplace_back(FillRect{{item.x, item.y + yMargin, barWidth, item.height - 2 * yMargin}, color});
    const QString head = QString::number(number + 1) + u"   "_s + days(comment, report.settings);
    drawTextPart(picture, box, {head, commentColorName(comment)}, layout.lines[part.item], part);
    picture.emplace_back(StraightLine{{item.x, item.y}, {item.right(), item.y}, 0.5, Qt::gray});
}

void DrawComment::drawNote(Picture& picture, const Rect& box, const TextPart& part) const {
    const QString head = qtTrId("reportEarlierComments", static_cast<int>(layout.leftOut));
    drawTextPart(picture, box, {head, {}}, layout.lines[part.item], part);
    picture.emplace_back(
        StraightLine{{box.x - barWidth - xMargin, box.y}, {box.right(), box.y}, 0.5, Qt::gray});
}

} // namespace zel

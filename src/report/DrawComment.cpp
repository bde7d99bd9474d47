#include "report/DrawComment.h"

#include "report/CommentLook.h"
#include "report/FieldText.h"

#include <algorithm>
#include <cmath>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

const TextAttribute smallFont{};
const TextAttribute boldFont{.bold = true};
constexpr double barWidth = 6;

double itemHeight() { return (2 * lineHeight(smallFont) + 3 * DrawComment::yMargin) * 2; }

QString day(DayNumber number, const SettingModel& settings) {
    return isUndatedDay(number) ? u"n.a"_s : dayText(number, settings.getDateFormat());
}

QString days(const CommentModel& comment, const SettingModel& settings) {
    QString period = day(comment.beginDay, settings) + u" \u2013 "_s + day(comment.endDay, settings);
    const bool isKnown = !isUndatedDay(comment.beginDay) && comment.beginDay <= comment.endDay;
    if (!isKnown) return period;
    const int total = comment.endDay - comment.beginDay + 1;
    return period + u"  ("_s + (qtTrId("reportDays", total)) + u')';
}

} // namespace

int DrawComment::iItemsPerPage(const Rect& rect) {
    return std::max(1, static_cast<int>(std::ceil(rect.height / itemHeight())));
}

int DrawComment::needPages(const Rect& rect) const {
    const int perPage = iItemsPerPage(rect);
    return (static_cast<int>(report.comments.size()) + perPage - 1) / perPage;
}

void DrawComment::drawRect(Picture& picture, const Rect& rect, int page) const {
    const int perPage = iItemsPerPage(rect);
    const auto from = std::size_t(std::max(0, page - 1)) * std::size_t(perPage);
    const std::size_t until = std::min(report.comments.size(), from + std::size_t(perPage));
    // As many as are counted fit: the last one would else stand in the footer.
    const double height = rect.height / perPage;
    picture.emplace_back(FillRect{rect, Qt::white});
    for (std::size_t index = from; index < until; ++index) {
        const double bottom = rect.top() - height * static_cast<double>(index - from + 1);
        drawItem(picture, {rect.x, bottom, rect.width, height}, *report.comments[index]);
    }
}

void DrawComment::drawItem(Picture& picture, const Rect& item, const CommentModel& comment) const {
    const double line = lineHeight(smallFont);
    const QColor color = getCommentColor(comment.degree, true);
    picture.emplace_back(FillRect{{item.x, item.y + yMargin, barWidth, item.height - 2 * yMargin}, color});
    const double left = item.x + barWidth + xMargin;
    const double width = item.right() - left - xMargin;
    const double headBase = item.top() - yMargin - line;
    const QString colorName = commentColorName(comment);
    const double nameWidth = textSize(colorName, smallFont).width;
    const QString head = commentNumber(report.comments, comment) + u"   "_s + days(comment, report.settings);
    fieldText(picture, head, {left, headBase}, width - nameWidth - xMargin, boldFont);
    textOut(picture, colorName, {left + width, headBase}, smallFont, XPos::right);
    const int lines = static_cast<int>((headBase - item.y - yMargin) / line);
    fieldParagraph(picture, comment.comment, {left, headBase}, width, smallFont, lines);
    picture.emplace_back(StraightLine{{item.x, item.y}, {item.right(), item.y}, 0.5, Qt::gray});
}

} // namespace zel

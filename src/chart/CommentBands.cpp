#include "chart/CommentBands.h"

#include "chart/CommentBoxes.h"
#include "chart/Drawing.h"

#include <QCoreApplication>
#include <QFontMetricsF>

#include <algorithm>

namespace zel {

namespace {

const TextAttribute bandFont{.size = 9};
constexpr double longestLabel = 180; ///< beside a band
constexpr double enoughLabel = 80;   ///< inside a band, where it is longer
constexpr double leastBand = 2;      ///< a day of seven years would not be seen
constexpr double labelIndent = 3;
constexpr double betweenBands = 4;
constexpr double bandGap = 2; ///< between two rows

/// What is taken of a row, from left to right.
struct Taken {
    double from = 0;
    double to = 0;
};
using Row = std::vector<Taken>;

bool isFree(const Row& row, const Taken& wanted) {
    return std::ranges::none_of(row, [&](const Taken& one) {
        return wanted.from < one.to + betweenBands && one.from < wanted.to + betweenBands;
    });
}

/// The comments of the period with their days, the latest first.
std::vector<std::pair<const CommentModel*, Period>> commentsOf(const CommentList& comments,
                                                               const Period& period) {
    std::vector<std::pair<const CommentModel*, Period>> found;
    for (const auto& comment : comments) {
        const auto dates = commentPeriod(*comment);
        if (!dates) continue;
        const Period days{DateToDayBoundary(dates->begin, true), DateToDayBoundary(dates->end, false)};
        if (days.begin <= period.end && period.begin <= days.end) found.emplace_back(comment.get(), days);
    }
    std::ranges::stable_sort(found,
                             [](const auto& a, const auto& b) { return a.second.begin > b.second.begin; });
    return found;
}

QString labelOf(const CommentModel& comment, double width) {
    constexpr qsizetype enough = 500; // of a text of any length
    return QFontMetricsF(bandFont.font())
        .elidedText(comment.comment.left(enough).simplified(), Qt::ElideRight, width);
}

/// Inside the band or, where that is shorter, beside it.
double labelX(const Rect& band, double width, const TimeScale& scale) {
    const double right = scale.left + scale.width;
    if (width + 2 * labelIndent <= band.width) return band.x + labelIndent;
    if (band.right() + labelIndent + width <= right) return band.right() + labelIndent;
    return std::max(scale.left, band.x - labelIndent - width);
}

CommentBand bandOf(const CommentModel& comment, const Period& days, const Period& period,
                   const TimeScale& scale) {
    const double from = scale.calcXPos(std::max(days.begin, period.begin));
    const double to = scale.calcXPos(std::min(days.end, period.end));
    CommentBand band;
    band.band.x = std::min(from, scale.left + scale.width - leastBand);
    band.band.width = std::max(leastBand, to - band.band.x);
    const double inside = band.band.width - 2 * labelIndent;
    const double room = inside >= enoughLabel ? inside : std::min(longestLabel, scale.width / 3);
    band.label = labelOf(comment, room);
    band.color = getCommentColor(comment.degree, true);
    band.labelAt.x = labelX(band.band, textSize(band.label, bandFont).width, scale);
    return band;
}

Taken extent(const CommentBand& band) {
    const double labelEnd = band.labelAt.x + textSize(band.label, bandFont).width;
    return {std::min(band.band.x, band.labelAt.x), std::max(band.band.right(), labelEnd)};
}

void moveToRow(CommentBand& band, double top, std::size_t row) {
    band.band.height = commentBandHeight - bandGap;
    band.band.y = top - commentBandHeight * static_cast<double>(row + 1) + bandGap;
    band.labelAt.y = band.band.y + (band.band.height - textSize(band.label, bandFont).height) / 2;
}

CommentBands layOutRows(const std::vector<std::pair<const CommentModel*, Period>>& comments,
                        const Period& period, const TimeScale& scale, double top, std::size_t mostRows) {
    std::vector<Row> rows;
    CommentBands bands;
    for (const auto& [comment, days] : comments) {
        CommentBand band = bandOf(*comment, days, period, scale);
        const Taken taken = extent(band);
        auto row = std::ranges::find_if(rows, [&](const Row& one) { return isFree(one, taken); });
        if (row == rows.end()) {
            if (rows.size() == mostRows) {
                ++bands.left;
                continue;
            }
            row = rows.insert(rows.end(), Row{});
        }
        row->push_back(taken);
        moveToRow(band, top, static_cast<std::size_t>(row - rows.begin()));
        bands.shown.push_back(std::move(band));
    }
    bands.rows = static_cast<int>(rows.size());
    return bands;
}

void drawFrame(Picture& picture, const Rect& rect, const QColor& color) {
    picture.emplace_back(Curve{{{rect.x, rect.y},
                                {rect.right(), rect.y},
                                {rect.right(), rect.top()},
                                {rect.x, rect.top()},
                                {rect.x, rect.y}},
                               0.75,
                               color,
                               {}});
}

} // namespace

double CommentBands::height() const { return commentBandHeight * (rows + int{left > 0}); }

CommentBands layOutCommentBands(const CommentList& comments, const Period& period, const TimeScale& scale,
                                double top, int mostRows) {
    return layOutRows(commentsOf(comments, period), period, scale, top,
                      static_cast<std::size_t>(std::max(0, mostRows)));
}

void drawCommentBands(Picture& picture, const CommentBands& bands, const TimeScale& scale, double top,
                      bool black) {
    constexpr int pale = 70;
    for (const CommentBand& band : bands.shown) {
        const QColor color = black ? QColor(Qt::black) : band.color;
        QColor fill = black ? QColor(Qt::gray) : color;
        fill.setAlpha(pale);
        picture.emplace_back(FillRect{band.band, fill});
        drawFrame(picture, band.band, color);
        if (!band.label.isEmpty()) picture.emplace_back(TextLine{band.label, band.labelAt, bandFont});
    }
    if (bands.left == 0) return;
    textOut(picture, qtTrId("trendMoreComments", bands.left),
            {scale.left, top - commentBandHeight * (bands.rows + 1)}, bandFont);
}

} // namespace zel

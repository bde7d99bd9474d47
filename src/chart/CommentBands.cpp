#include "chart/CommentBands.h"

#include "analysis/CommentDays.h"
#include "analysis/Summary.h"
#include "chart/Drawing.h"
#include "chart/StyleTable.h"
#include "chart/TrendCurves.h"

#include <QCoreApplication>
#include <QFontMetricsF>

#include <algorithm>
#include <optional>

namespace zel {

namespace {

const TextAttribute bandFont{.size = 9};
constexpr double longestLabel = 180; ///< beside a band
constexpr double enoughLabel = 80;   ///< inside a band, where it is longer
constexpr double leastBand = 3;      ///< a day of seven years would not be seen
constexpr double labelIndent = 3;
constexpr double betweenBands = 4, betweenBare = 1;
constexpr double bandGap = 2;    ///< between two rows
constexpr double bareHeight = 7; ///< of a row of bands without their text

/// What is taken of a row, from left to right.
struct Taken {
    double from = 0;
    double to = 0;
};
using Row = std::vector<Taken>;

bool isFree(const Row& row, const Taken& wanted, double apart) {
    return std::ranges::none_of(
        row, [&](const Taken& one) { return wanted.from < one.to + apart && one.from < wanted.to + apart; });
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

CommentBand bandOf(const CommentModel& comment, const TimeScale& scale, const LocalZone& zone) {
    const CommentDays days = commentDays(comment).value_or(CommentDays());
    const auto [from, to] = trendSpan(scale, days.begin, days.end, zone);
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

/// Takes the first row that has room for it. \return its number
std::optional<std::size_t> takeRow(std::vector<Row>& rows, const Taken& wanted, double apart) {
    const auto row = std::ranges::find_if(rows, [&](const Row& one) { return isFree(one, wanted, apart); });
    if (row == rows.end()) return {};
    row->push_back(wanted);
    return static_cast<std::size_t>(row - rows.begin());
}

/// Joined with what it lies over, so that a row never holds more than has room in it.
void takeOver(Row& row, Taken wanted) {
    std::erase_if(row, [&](const Taken& one) {
        if (one.to <= wanted.from || wanted.to <= one.from) return false;
        wanted = {std::min(one.from, wanted.from), std::max(one.to, wanted.to)};
        return true;
    });
    row.push_back(wanted);
}

double usedRows(const std::vector<Row>& rows) {
    return static_cast<double>(std::ranges::count_if(rows, [](const Row& row) { return !row.empty(); }));
}

/// Rows of bands with their text, and below them lower ones for the others.
class BandRows {
public:
    BandRows(std::size_t rows, std::size_t bareRows) : named(rows), bare(bareRows) {}

    void add(CommentBand band) {
        if (const auto row = takeRow(named, extent(band), betweenBands)) {
            moveTo(band, commentBandHeight, commentBandHeight * static_cast<double>(*row + 1));
        } else {
            if (!band.label.isEmpty()) ++made.wordless;
            band.label.clear();
            addBare(band);
        }
        made.shown.push_back(std::move(band));
    }
    [[nodiscard]] CommentBands finish(double bottom) {
        const bool isCounted = made.wordless > 0 || made.covered > 0;
        made.height = commentBandHeight * (usedRows(named) + int{isCounted}) + bareHeight * usedRows(bare);
        for (CommentBand& band : made.shown) {
            band.band.y += bottom + made.height;
            band.labelAt.y += bottom + made.height;
        }
        return std::move(made);
    }

private:
    void addBare(CommentBand& band) {
        const Taken wanted{band.band.x, band.band.right()};
        auto row = takeRow(bare, wanted, betweenBare);
        if (!row) {
            ++made.covered;
            if (bare.empty()) return; // another arrangement has rows for it
            row = bare.size() - 1;
            takeOver(bare.back(), wanted);
        }
        const auto above = commentBandHeight * static_cast<double>(named.size());
        moveTo(band, bareHeight, above + bareHeight * static_cast<double>(*row + 1));
    }
    /// \p below: the top of all
    static void moveTo(CommentBand& band, double rowHeight, double below) {
        band.band.height = rowHeight - bandGap;
        band.band.y = bandGap - below;
        band.labelAt.y = band.band.y + (band.band.height - textSize(band.label, bandFont).height) / 2;
    }

    std::vector<Row> named, bare;
    CommentBands made;
};

CommentBands layOutBandsIn(const std::vector<CommentBand>& bands, std::size_t rows, std::size_t bareRows,
                           double bottom) {
    BandRows made(rows, bareRows);
    for (const CommentBand& band : bands)
        made.add(band);
    return made.finish(bottom);
}

/// As few bare rows as can tell all bands apart: each row of text has the room of two.
CommentBands layOutRows(const std::vector<CommentBand>& bands, std::size_t mostRows, double bottom) {
    CommentBands made = layOutBandsIn(bands, mostRows, 0, bottom);
    const std::size_t mostBare = std::max<std::size_t>(mostRows, 2) - 1;
    for (std::size_t rows = 1; rows <= mostBare && made.covered > 0; ++rows)
        made = layOutBandsIn(bands, mostRows - rows, 2 * rows, bottom);
    return made;
}

QString bandCounts(const CommentBands& bands) {
    if (bands.left > 0) return qtTrId("trendMoreComments", bands.left);
    QStringList counts;
    if (bands.wordless > 0) counts += qtTrId("trendWordlessComments", bands.wordless);
    if (bands.covered > 0) counts += qtTrId("trendCoveredComments", bands.covered);
    return counts.join(qtTrId("; "));
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

CommentBands layOutCommentBands(const CommentList& comments, const TimeScale& scale, double bottom,
                                int mostRows, const LocalZone& zone) {
    const auto shown = commentsOfPeriod(comments, {scale.begin, scale.end});
    CommentBands none;
    none.left = static_cast<int>(shown.size());
    none.height = none.left > 0 ? commentBandHeight : 0;
    if (mostRows <= 0) return none;
    std::vector<CommentBand> bands;
    bands.reserve(shown.size());
    for (const CommentModel* comment : shown)
        bands.push_back(bandOf(*comment, scale, zone));
    return layOutRows(bands, static_cast<std::size_t>(mostRows), bottom);
}

void drawCommentBands(Picture& picture, const CommentBands& bands, const TimeScale& scale, double bottom,
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
    if (const QString counts = bandCounts(bands); !counts.isEmpty())
        textOut(picture, counts, {scale.left, bottom}, bandFont);
}

} // namespace zel

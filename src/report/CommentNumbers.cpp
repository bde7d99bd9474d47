#include "report/CommentNumbers.h"

#include "report/FieldText.h"

#include <algorithm>
#include <span>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr double numberIndent = 3; ///< from the edge of the box
constexpr double numberGap = 3;

constexpr qsizetype mostRows = 4; ///< of numbers of boxes that begin together

/// Numbers that follow one another, as they are told: "2", "5, 6" or "5–7".
struct Run {
    QString text;
    int count = 0;
};

std::vector<Run> runsOf(std::span<const NumberedBox> boxes) {
    std::vector<Run> runs;
    for (std::size_t from = 0, until = 0; from < boxes.size(); from = until) {
        until = from + 1;
        while (until < boxes.size() && boxes[until].number == boxes[until - 1].number + 1)
            ++until;
        const QString first = QString::number(boxes[from].number);
        const QString last = QString::number(boxes[until - 1].number);
        const auto count = static_cast<int>(until - from);
        runs.push_back({count < 2 ? first : first + (count < 3 ? u", "_s : u"\u2013"_s) + last, count});
    }
    return runs;
}

/// Runs in rows of that width, from top to bottom; a last row says how many numbers have none.
QStringList rowsOf(const std::vector<Run>& runs, double width, const TextAttribute& attribute) {
    QStringList rows{QString()};
    int left = 0;
    for (const Run& run : runs) {
        QString& row = rows.last();
        const QString longer = row.isEmpty() ? run.text : row + u", "_s + run.text;
        if (left == 0 && (row.isEmpty() || textSize(longer, attribute).width <= width)) {
            row = longer;
        } else if (left == 0 && rows.size() < mostRows) {
            row += u',';
            rows += run.text;
        } else {
            left += run.count;
        }
    }
    if (left > 0) rows += qtTrId("reportMoreNumbers", left);
    return rows;
}

/// The lowest row in which a text from \p x on is free; \p ends tells where each row is written to.
std::size_t freeRow(std::vector<double>& ends, double x) {
    const auto row = std::ranges::find_if(ends, [x](double end) { return end + numberGap <= x; });
    const auto index = static_cast<std::size_t>(row - ends.begin());
    if (index == ends.size()) ends.push_back(x);
    return index;
}

} // namespace

std::vector<CommentNumber> commentNumbers(std::vector<NumberedBox> boxes, Point at, double areaWidth,
                                          const TextAttribute& attribute) {
    std::ranges::sort(boxes, {}, [](const NumberedBox& box) { return std::pair(box.x, box.number); });
    std::vector<CommentNumber> numbers;
    std::vector<double> ends;
    const std::span<const NumberedBox> all(boxes);
    for (std::size_t from = 0, until = 0; from < all.size(); from = until) {
        while (until < all.size() && all[until].x == all[from].x)
            ++until;
        const QStringList rows = rowsOf(runsOf(all.subspan(from, until - from)), areaWidth / 2, attribute);
        double width = 0;
        for (const QString& row : rows)
            width = std::max(width, textSize(row, attribute).width);
        const double right = at.x + areaWidth - numberIndent;
        const double x = std::min(std::max(all[from].x, at.x) + numberIndent, right - width);
        for (const QString& row : QStringList(rows.rbegin(), rows.rend())) {
            const std::size_t index = freeRow(ends, x);
            ends[index] = x + width;
            numbers.push_back({row, {x, at.y + static_cast<double>(index) * lineHeight(attribute)}});
        }
    }
    return numbers;
}

} // namespace zel

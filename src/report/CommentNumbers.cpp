#include "report/CommentNumbers.h"

#include "report/FieldText.h"

#include <algorithm>
#include <span>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr double numberIndent = 3; ///< from the edge of the box
constexpr double numberGap = 3;

/// "2, 5–7": runs of numbers are told by their ends.
QString joined(std::span<const NumberedBox> boxes) {
    QStringList runs;
    for (std::size_t from = 0, until = 0; from < boxes.size(); from = until) {
        until = from + 1;
        while (until < boxes.size() && boxes[until].number == boxes[until - 1].number + 1)
            ++until;
        const QString first = QString::number(boxes[from].number);
        const QString last = QString::number(boxes[until - 1].number);
        runs += until - from < 2 ? first : first + (until - from < 3 ? u", "_s : u"\u2013"_s) + last;
    }
    return runs.join(u", "_s);
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
        const QString text = elided(joined(all.subspan(from, until - from)), areaWidth / 3, attribute);
        const double width = textSize(text, attribute).width;
        const double right = at.x + areaWidth - numberIndent;
        const double x = std::min(std::max(all[from].x, at.x) + numberIndent, right - width);
        const std::size_t row = freeRow(ends, x);
        ends[row] = x + width;
        numbers.push_back({text, {x, at.y + static_cast<double>(row) * lineHeight(attribute)}});
    }
    return numbers;
}

} // namespace zel

#include "report/TextPages.h"

#include "report/FieldText.h"

#include <algorithm>

namespace zel {

namespace {

const TextAttribute headFont{.bold = true};
const TextAttribute textFont{};
const TextAttribute goesOnFont{.size = 9};
constexpr double rounding = 0.01;
constexpr double headGap = 8; ///< between the head's two texts

} // namespace

TextPages textPages(std::span<const TextItem> items, double height, double line, double margins) {
    TextPages pages;
    double left = 0;
    for (std::size_t item = 0; item < items.size(); ++item) {
        const auto& [total, least] = items[item];
        int from = 0;
        do {
            if (pages.empty() || left + rounding < least) {
                pages.emplace_back();
                left = height;
            }
            const int room = std::max(2, static_cast<int>((left + rounding - margins) / line) - 1);
            const bool goesOn = total - from > room;
            const int lines = goesOn ? room - 1 : total - from; // the last one says so
            const double used = goesOn ? left : std::max(least, (lines + 1) * line + margins);
            pages.back().push_back({item, from, lines, used, goesOn});
            left -= used;
            from += lines;
        } while (pages.back().back().goesOn);
    }
    return pages;
}

void drawTextPart(Picture& picture, const Rect& box, const TextHead& head, const QStringList& lines,
                  const TextPart& part) {
    const double line = lineHeight(textFont);
    const double rightWidth = head.atRight.isEmpty() ? 0 : textSize(head.atRight, textFont).width + headGap;
    double y = box.top() - textPartMargin - line;
    fieldText(picture, part.from > 0 ? qtTrId("reportContinued").arg(head.text) : head.text, {box.x, y},
              box.width - rightWidth, headFont);
    fieldText(picture, head.atRight, {box.right(), y}, box.width, textFont, XPos::right);
    for (const QString& text : lines.mid(part.from, part.lines))
        textOut(picture, text, {box.x, y -= line}, textFont);
    if (part.goesOn)
        textOut(picture, qtTrId("reportGoesOn"), {box.right(), y - line}, goesOnFont, XPos::right);
}

} // namespace zel

#include "chart/TrendNames.h"

#include "chart/Drawing.h"

#include <algorithm>

namespace zel {

namespace {

const TextAttribute nameFont{.bold = true};

} // namespace

Size lineNamesSize(std::span<const LineName> names) {
    Size size;
    for (const LineName& name : names) {
        const Size one = textSize(name.text, nameFont);
        size = {std::max(size.width, one.width), size.height + one.height};
    }
    return size;
}

std::vector<TextLine> placeLineNames(std::vector<LineName> names, const Rect& column) {
    std::ranges::stable_sort(names, std::ranges::greater{}, &LineName::y);
    std::vector<TextLine> placed;
    placed.reserve(names.size());
    double ceiling = column.top();
    for (const LineName& name : names) {
        const double height = textSize(name.text, nameFont).height;
        TextAttribute font = nameFont;
        font.color = name.color;
        const double bottom = std::min(name.y - height / 2, ceiling - height);
        placed.push_back({name.text, {column.x, bottom}, font});
        ceiling = bottom;
    }
    double floor = column.y; // what was pushed out at the bottom pushes back
    for (std::size_t index = placed.size(); index-- > 0;) {
        TextLine& name = placed[index];
        name.origin.y = std::max(name.origin.y, floor);
        floor = name.origin.y + textSize(name.text, name.attribute).height;
    }
    return placed;
}

} // namespace zel

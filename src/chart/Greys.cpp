#include "chart/Greys.h"

#include <type_traits>

namespace zel {

QColor greyOf(const QColor& color) {
    const int light = qGray(color.rgb());
    return {light, light, light, color.alpha()};
}

Picture inGreys(Picture picture) {
    const auto recolour = [](auto& item) {
        using Item = std::remove_cvref_t<decltype(item)>;
        if constexpr (requires { item.color; }) item.color = greyOf(item.color);
        if constexpr (requires { item.border; }) item.border = greyOf(item.border);
        if constexpr (requires { item.attribute; }) item.attribute.color = greyOf(item.attribute.color);
        if constexpr (std::is_same_v<Item, ImageItem>) item.isGrey = true;
    };
    for (PictureItem& item : picture)
        std::visit(recolour, item);
    return picture;
}

} // namespace zel

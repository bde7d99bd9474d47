#include "chart/TextWidths.h"

#include "chart/Drawing.h"

namespace zel {

TextWidths::Type& TextWidths::typeOf(const TextAttribute& attribute) {
    const std::pair key(attribute.size, attribute.bold);
    const auto found = known.find(key);
    if (found != known.end()) return found->second;
    return known.emplace(key, Type{QFontMetricsF(attribute.font()), {}}).first->second;
}

double TextWidths::of(const QString& text, const TextAttribute& attribute) {
    Type& type = typeOf(attribute);
    const auto found = type.widths.constFind(text);
    if (found != type.widths.constEnd()) return *found;
    return *type.widths.insert(text, type.metrics.horizontalAdvance(text));
}

double widthOf(const QString& text, const TextAttribute& attribute, TextWidths* widths) {
    return widths ? widths->of(text, attribute) : textSize(text, attribute).width;
}

} // namespace zel

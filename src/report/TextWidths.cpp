#include "report/TextWidths.h"

#include "chart/Drawing.h"

namespace zel {

double TextWidths::of(const QString& text, const TextAttribute& attribute) {
    QHash<QString, double>& widths = known[{attribute.size, attribute.bold}];
    const auto found = widths.constFind(text);
    if (found != widths.constEnd()) return *found;
    return *widths.insert(text, textSize(text, attribute).width);
}

} // namespace zel

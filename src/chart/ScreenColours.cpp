#include "chart/ScreenColours.h"

#include <algorithm>
#include <cmath>

namespace zel {

namespace {

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double lightness(const QColor& color) { return color.toHsl().lightnessF(); }

double between(double from, double to, double share) { return from + (to - from) * share; }

QColor mixed(const QColor& color, const QColor& other, double share) {
    return QColor::fromRgbF(static_cast<float>(between(color.redF(), other.redF(), share)),
                            static_cast<float>(between(color.greenF(), other.greenF(), share)),
                            static_cast<float>(between(color.blueF(), other.blueF(), share)), color.alphaF());
}

QColor withAlphaOf(const QColor& color, QColor opaque) {
    opaque.setAlphaF(color.alphaF());
    return opaque;
}

/// A grid as strong as the lines of readings would hide them.
bool isGrid(const QColor& color) {
    return color == fixColor(gcGrayLinecolor) || color == fixColor(gcScaleBackgroundColor);
}

/// Gives each item its shade.
class Recolouring {
public:
    explicit Recolouring(const ScreenColours& chosen) : colours(chosen) {}

    void operator()(FillRect& item) const { item.color = shade(item.color, colours); }
    void operator()(RoundRect& item) const {
        item.color = item.strokeWidth > 0 ? line(item.color) : shade(item.color, colours);
    }
    void operator()(StraightLine& item) const { item.color = line(item.color); }
    void operator()(Circle& item) const { item.color = line(item.color); }
    void operator()(TextLine& item) const {
        item.attribute.color = readableShade(item.attribute.color, colours);
    }
    void operator()(PolyLine& item) const { item.color = line(item.color); }
    void operator()(Curve& item) const { item.color = line(item.color); }
    void operator()(Area& item) const { item.color = shade(item.color, colours); }
    void operator()(PointMarks& item) const {
        item.color = line(item.color);
        item.border = line(item.border);
    }
    void operator()(Ticks& item) const { item.color = shade(item.color, colours); }
    void operator()(ImageItem&) const {}
    void operator()(BeginClip&) const {}
    void operator()(EndClip&) const {}

private:
    [[nodiscard]] QColor line(const QColor& color) const {
        return colours.isStrong && !isGrid(color) ? readableShade(color, colours) : shade(color, colours);
    }

    const ScreenColours& colours;
};

} // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

/// Pale colours stay as pale beside the paper as they were beside white: what is kept is how far apart their
/// channels lie, which saturation alone does not say.
QColor shade(const QColor& color, const ScreenColours& colours) {
    if (colours.isPlain()) return color;
    if (color.red() == color.green()
        && color.green() == color.blue()) // paper and ink may have a hue themselves
        return withAlphaOf(color, mixed(colours.ink, colours.paper, lightness(color)));
    const QColor hsl = color.toHsl();
    const double chroma = (1 - std::abs(2 * lightness(color) - 1)) * hsl.hslSaturationF();
    const double light = between(lightness(colours.ink), lightness(colours.paper), lightness(color));
    const double room = 1 - std::abs(2 * light - 1);
    const double saturation = room > 0 ? std::min(1.0, chroma / room) : 0;
    return QColor::fromHslF(hsl.hslHueF(), static_cast<float>(saturation), static_cast<float>(light),
                            color.alphaF());
}

QColor readableShade(const QColor& color, const ScreenColours& colours) {
    if (colours.isPlain()) return color;
    const QColor beside = shade(fixColor(gcScaleBackgroundColor), colours);
    const QColor start = shade(color, colours);
    constexpr int steps = 10;
    QColor found = start;
    for (int step = 0; step <= steps; ++step) {
        found = mixed(start, colours.ink, static_cast<double>(step) / steps);
        if (std::min(contrast(found, beside), contrast(found, colours.paper)) >= readable) break;
    }
    return found;
}

Picture inColours(Picture picture, const ScreenColours& colours) {
    if (colours.isPlain()) return picture;
    for (PictureItem& item : picture)
        std::visit(Recolouring(colours), item);
    return picture;
}

} // namespace zel

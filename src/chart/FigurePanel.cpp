#include "chart/FigurePanel.h"

#include "chart/Drawing.h"

#include <algorithm>
#include <cmath>

namespace zel {

namespace {

/// Every which number is shown, so that none touches the next.
int numberStep(const PanelScale& scale) {
    constexpr double air = 4;
    const Size widest = textSize(QString::number(scale.unitStep * scale.divide), attribute(1));
    const double needed = (scale.axis == Axis::vertical ? widest.height : widest.width) + air;
    return static_cast<int>(std::ceil(std::clamp(needed / stepLength(scale), 1.0, 1000.0)));
}

} // namespace

void drawGrid(Picture& picture, const Rect& panel, const PanelScale& scale) {
    const QColor color = fixColor(gcScaleBackgroundColor);
    for (int k = 1; k < scale.divide; ++k) {
        const double at = k * stepLength(scale);
        if (scale.axis == Axis::vertical)
            picture.emplace_back(
                StraightLine{{panel.x, panel.y + at}, {panel.right(), panel.y + at}, 1, color});
        else
            picture.emplace_back(
                StraightLine{{panel.x + at, panel.y}, {panel.x + at, panel.top()}, 1, color});
    }
}

void drawNumbers(Picture& picture, const Rect& panel, const PanelScale& scale) {
    const int every = numberStep(scale);
    for (int k = every; k <= scale.divide - 2; k += every) {
        const QString number = QString::number(scale.unitStep * k);
        const double at = k * stepLength(scale);
        if (scale.axis == Axis::vertical)
            textOut(picture, number, {panel.x - numberGap, panel.y + at}, attribute(1), XPos::right,
                    YPos::centre);
        else
            textOut(picture, number, {panel.x + at, panel.y - bottomMargin / 2}, attribute(1), XPos::centre,
                    YPos::centre);
    }
}

void drawUnit(Picture& picture, const Rect& panel, const QString& unit, double y, bool hangs) {
    TextAttribute font = attribute(7);
    while (font.size > 1 && textSize(unit, font).width > leftMargin - 2 * edgeGap)
        --font.size;
    textOut(picture, unit, {panel.x - edgeGap, y}, font, XPos::right, hangs ? YPos::top : YPos::centre);
}

} // namespace zel

#include "chart/ValueScale.h"

#include "chart/Drawing.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace zel {

namespace {

constexpr int numberAttribute = 3;
constexpr int unitAttribute = 7;
constexpr int lineStep = 20;

/// Every which number stands clear of the next in a low chart.
int numberEvery(double step) {
    constexpr int air = 2;
    const int needed = attribute(numberAttribute).size + air;
    return std::max(1, static_cast<int>(std::ceil(needed / std::max(step, 1.0))));
}

/// Whether a number stands clear of the unit that hangs at \p top.
bool isBelowUnit(double y, double top) {
    constexpr double line = 1.2; // of the type's size
    return y + line * attribute(numberAttribute).size / 2 <= top - line * attribute(unitAttribute).size;
}

void addNumber(Picture& picture, const ChartScale& scale, int value, double y) {
    textOut(picture, QString::number(value), {scale.chartRect.x, y}, attribute(numberAttribute), XPos::right,
            YPos::centre);
}

/// The unit hangs below \p top.
void addUnit(Picture& picture, const ChartScale& scale, const QString& unit, double top) {
    textOut(picture, unit, {scale.totalRect.x, top}, attribute(unitAttribute), XPos::left, YPos::top);
}

void addGridLine(Picture& picture, const ChartScale& scale, double y) {
    picture.push_back(
        StraightLine{{scale.chartRect.x, y}, {scale.chartRect.right(), y}, 1, fixColor(gcGrayLinecolor)});
}

} // namespace

void drawBloodScale(Picture& picture, const ChartScale& scale) {
    constexpr int last = 140; // its number's place holds the unit
    const double step = std::floor(std::trunc(scale.chartRect.height) / 9);
    const int every = numberEvery(step);
    for (int above = 0; above <= last; above += lineStep) {
        const int value = scale.iScaleBase + above;
        const int row = above / lineStep;
        const double y = scale.chartRect.y + step * (row + 1);
        if (above != last && row % every == 0 && isBelowUnit(y, scale.totalRect.top()))
            addNumber(picture, scale, value, y);
        addGridLine(picture, scale, scale.mapValToY(value));
    }
    addUnit(picture, scale, qtTrId("mmHg"), scale.totalRect.top());
}

void drawPulseScale(Picture& picture, const ChartScale& scale) {
    constexpr int lines = 3;
    const double quarter = std::floor(std::trunc(scale.chartRect.height) / 4);
    const int every = numberEvery(quarter);
    const double unitTop = scale.chartRect.y + 4 * quarter;
    for (int line = 0; line < lines; ++line) {
        const int value = scale.iScaleBase + line * lineStep;
        const double y = scale.chartRect.y + quarter * (line + 1);
        if (line + 1 < lines && line % every == 0 && isBelowUnit(y, unitTop))
            addNumber(picture, scale, value, y);
        addGridLine(picture, scale, scale.mapPulseValToY(value));
    }
    addUnit(picture, scale, qtTrId("P/min"), unitTop);
}

void DrawAlphaLine(Picture& picture, const ChartScale& scale, std::uint32_t limit) {
    if (limit == 0) return;
    const double y = scale.mapValToY(limit);
    picture.push_back(
        StraightLine{{scale.chartRect.x, y}, {scale.chartRect.right(), y}, 2, fixColor(gcBloodRedLinecolor)});
}

} // namespace zel

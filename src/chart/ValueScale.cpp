#include "chart/ValueScale.h"

#include "chart/Drawing.h"

#include <QCoreApplication>

#include <cmath>

namespace zel {

namespace {

constexpr int numberAttribute = 3;
constexpr int unitAttribute = 7;
constexpr int lineStep = 20;

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
    for (int above = 0; above <= last; above += lineStep) {
        const int value = scale.iScaleBase + above;
        if (above != last) {
            const int row = above / lineStep + 1;
            addNumber(picture, scale, value, scale.chartRect.y + step * row);
        }
        addGridLine(picture, scale, scale.mapValToY(value));
    }
    addUnit(picture, scale, qtTrId("mmHg"), scale.totalRect.top());
}

void drawPulseScale(Picture& picture, const ChartScale& scale) {
    constexpr int lines = 3;
    const double quarter = std::floor(std::trunc(scale.chartRect.height) / 4);
    for (int line = 0; line < lines; ++line) {
        const int value = scale.iScaleBase + line * lineStep;
        if (line + 1 < lines) addNumber(picture, scale, value, scale.chartRect.y + quarter * (line + 1));
        addGridLine(picture, scale, scale.mapPulseValToY(value));
    }
    addUnit(picture, scale, qtTrId("P/min"), scale.chartRect.y + 4 * quarter);
}

} // namespace zel

#include "chart/DrawHistogram.h"

#include "chart/Drawing.h"
#include "chart/FigurePanel.h"

#include <algorithm>
#include <cstddef>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr double panelGap = 5;          ///< between the two panels that share a scale
constexpr double axisEndsBelowTop = 30; ///< room for the unit
constexpr int percentStep = 10;

struct Panel {
    Rect rect;
    QString title;
    QString unit; ///< empty: shares the scale of the panel to its left
    int divide;
};

std::array<Panel, 3> panels(const Rect& rect) {
    constexpr int pressureDivide = 14;
    constexpr int pulseDivide = 10;
    const double width = (rect.width - leftMargin - panelGap - leftMargin) / 3;
    const auto at = [&](double x) {
        return Rect{x, rect.y + bottomMargin, width, rect.height - bottomMargin};
    };
    const double sys = rect.x + leftMargin;
    const double dia = sys + width + panelGap;
    const double pulse = dia + width + leftMargin;
    return {{{at(sys), qtTrId("sys"), qtTrId("mmHg"), pressureDivide},
             {at(dia), qtTrId("dia"), {}, pressureDivide},
             {at(pulse), qtTrId("pulse"), qtTrId("P/min"), pulseDivide}}};
}

double titleHeight(const Panel& panel) { return textSize(panel.title, attribute(1)).height; }

void drawHVerticalScale(Picture& picture, const Panel& panel, double topMargin) {
    const Rect& rect = panel.rect;
    const PanelScale scale{Axis::vertical, panel.divide, valueStep, rect.height - topMargin};
    drawGrid(picture, rect, scale);
    textOut(picture, panel.title, {rect.x + 2, rect.top() - 2}, attribute(1), XPos::left, YPos::top);
    const Point axisEnd{rect.x, std::max(rect.y, rect.top() - axisEndsBelowTop)};
    picture.emplace_back(StraightLine{{rect.x, rect.y}, axisEnd, 2, Qt::black});
    if (panel.unit.isEmpty()) return;
    drawNumbers(picture, rect, scale);
    textOut(picture, panel.unit, {rect.x, rect.y + scale.length}, attribute(7), XPos::right, YPos::centre);
}

// Spelled so with the other drawing steps.
void drawHosizotalScale(Picture& picture, const Rect& rect, int divide) {
    if (divide >= 1) {
        const PanelScale scale{Axis::horizontal, divide, percentStep, rect.width};
        drawGrid(picture, rect, scale);
        drawNumbers(picture, rect, scale);
        textOut(picture, u"%"_s, {rect.right() - edgeGap, rect.y - bottomMargin / 2}, attribute(1),
                XPos::right, YPos::centre);
    }
    picture.emplace_back(StraightLine{{rect.x, rect.y}, {rect.right(), rect.y}, 2, Qt::black});
}

void drawBars(Picture& picture, const Panel& panel, const HistogramMeasure& measure, double topMargin) {
    const Rect& rect = panel.rect;
    const double row = (rect.height - topMargin) / panel.divide;
    const double thickness = 0.5 * row - std::max(row / 10, 1.0);
    if (thickness <= 0 || measure.percentDivisions < 1) return;
    picture.emplace_back(BeginClip{rect});
    for (int index = 0; index < histogramClassTotal; ++index) {
        const double share = measure.share[static_cast<std::size_t>(index)];
        if (share <= 0) continue;
        const double length = share * percentStep / measure.percentDivisions * rect.width;
        picture.emplace_back(FillRect{{rect.x, rect.y + index * 0.5 * row, length, thickness},
                                      fixColor(gcBloodStepAreacolor)});
    }
    picture.emplace_back(EndClip{});
}

} // namespace

Picture drawHistogram(const HistogramFigures& figures, const Rect& rect) {
    Picture picture{BeginClip{rect}, FillRect{rect, fixColor(gcScaleBackgroundColor)}};
    const auto shown = panels(rect);
    const std::array measures{&figures.sys, &figures.dia, &figures.pulse};
    const double topMargin = titleHeight(shown[0]);
    const bool hasRoom = shown[0].rect.width > 0 && shown[0].rect.height > topMargin;
    for (std::size_t index = 0; hasRoom && index < shown.size(); ++index) {
        picture.emplace_back(FillRect{shown[index].rect, Qt::white});
        drawHosizotalScale(picture, shown[index].rect, measures[index]->percentDivisions);
        drawHVerticalScale(picture, shown[index], topMargin);
        if (figures.total > 0) drawBars(picture, shown[index], *measures[index], topMargin);
    }
    picture.emplace_back(EndClip{});
    return picture;
}

} // namespace zel

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
constexpr int pressureDivide = 14; ///< divisions of the value scales
constexpr int pulseDivide = 10;
constexpr double titleIndent = 2;

struct Panel {
    Rect rect;
    QString title;
    QString unit; ///< empty: shares the scale of the panel to its left
    int divide;
};

std::array<Panel, 3> panels(const Rect& rect) {
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
    textOut(picture, panel.title, {rect.x + titleIndent, rect.top() - titleIndent}, attribute(1), XPos::left,
            YPos::top);
    const Point axisEnd{rect.x, std::max(rect.y, rect.top() - axisEndsBelowTop)};
    picture.emplace_back(StraightLine{{rect.x, rect.y}, axisEnd, 2, Qt::black});
    if (panel.unit.isEmpty()) return;
    drawNumbers(picture, rect, scale);
    drawUnit(picture, rect, panel.unit, rect.y + scale.length, false);
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
    picture.emplace_back(BeginClip{{rect.x, rect.y, rect.width, rect.height - topMargin}});
    for (int index = 0; index < histogramClassTotal; ++index) {
        const double share = measure.share[static_cast<std::size_t>(index)];
        if (share <= 0) continue;
        const double length = share * percentStep / measure.percentDivisions * rect.width;
        picture.emplace_back(FillRect{{rect.x, rect.y + index * 0.5 * row, length, thickness},
                                      fixColor(gcBloodStepAreacolor)});
    }
    picture.emplace_back(EndClip{});
}

/// Beside the title, where no bar reaches; below it in a narrow panel.
Rect noteRoom(const Panel& panel, double topMargin, const OffScale& offScale) {
    constexpr double gap = 6;
    const double left = panel.rect.x + titleIndent + textSize(panel.title, attribute(1)).width + gap;
    const Rect beside{left, panel.rect.top() - titleIndent - topMargin,
                      panel.rect.right() - titleIndent - left, topMargin + 1};
    if (hasRoomForOffScale(offScale, beside)) return beside;
    return {panel.rect.x, panel.rect.y, panel.rect.width, panel.rect.height - topMargin};
}

} // namespace

HistogramOffScale histogramOffScale(const ReadingList& readings, const ReadingSelection& selection) {
    constexpr ScaleRange pressure{0, pressureDivide * valueStep - 1};
    constexpr ScaleRange beats{0, pulseDivide * valueStep - 1};
    HistogramOffScale counts{};
    for (const ReadingModel& reading : readings) {
        if (!isCounted(reading, selection)) continue;
        countOffScale(counts[0], {{reading.sys, pressure}});
        countOffScale(counts[1], {{reading.dia, pressure}});
        countOffScale(counts[2], {{reading.pulse, beats}});
    }
    return counts;
}

Picture drawHistogram(const HistogramFigures& figures, const HistogramOffScale& offScale, const Rect& rect) {
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
        drawOffScale(picture, offScale[index], noteRoom(shown[index], topMargin, offScale[index]));
    }
    picture.emplace_back(EndClip{});
    return picture;
}

} // namespace zel

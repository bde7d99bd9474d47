#include "chart/DrawStatistic.h"

#include "chart/Drawing.h"
#include "chart/FigurePanel.h"

#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr double unitGap = 6;

/// Where the table's columns and rows lie.
struct StatisticGrid {
    double x0, r1, r2, r3; ///< the labels' left edge, the numbers' right edges
    double top, rowHeight;

    explicit StatisticGrid(const Rect& rect) {
        const auto width = [](const QString& text, int index) {
            return textSize(text, attribute(index)).width;
        };
        x0 = rect.x + 2;
        r1 = x0 + width(u"pulse  "_s, 5) + width(u"maxaverage"_s, 6);
        r2 = r1 + width(u"maxmin"_s, 6);
        r3 = r2 + width(u"maxmax"_s, 6);
        top = rect.top() - 1;
        rowHeight = textSize(u"A"_s, attribute(6)).height + 3;
    }
};

void drawNumbers(Picture& picture, const StatisticGrid& grid, double y, const std::array<QString, 3>& texts) {
    textOut(picture, texts[0], {grid.r1, y}, attribute(6), XPos::right, YPos::top);
    textOut(picture, texts[1], {grid.r2, y}, attribute(6), XPos::right, YPos::top);
    textOut(picture, texts[2], {grid.r3, y}, attribute(6), XPos::right, YPos::top);
}

struct StatisticRow {
    QString label;
    QString unit;
    const MeasureStatistic* measure;
};

void drawRow(Picture& picture, const StatisticGrid& grid, double y, const StatisticRow& row, double right) {
    textOut(picture, row.label, {grid.x0, y}, attribute(5), XPos::left, YPos::top);
    drawNumbers(picture, grid, y,
                {maxString(static_cast<std::uint32_t>(row.measure->average)), minString(row.measure->minimum),
                 maxString(row.measure->maximum)});
    const double unitX = grid.r3 + unitGap;
    if (unitX + textSize(row.unit, attribute(7)).width > right) return;
    const double baseline = y - textSize(row.label, attribute(5)).height;
    textOut(picture, row.unit, {unitX, baseline}, attribute(7), XPos::left, YPos::bottom);
}

} // namespace

Picture drawStatistic(const StatisticFigures& figures, bool showMap, const Rect& rect) {
    const StatisticGrid grid(rect);
    Picture picture{BeginClip{rect}};
    drawNumbers(picture, grid, grid.top, {qtTrId("average"), qtTrId("min"), qtTrId("max")});
    const std::array<StatisticRow, 4> rows{
        {{qtTrId("sys"), qtTrId("mmHg"), &figures.sys},
         {qtTrId("dia"), qtTrId("mmHg"), &figures.dia},
         {qtTrId("pulse"), qtTrId("P/min"), &figures.pulse},
         {showMap ? qtTrId("map") : qtTrId("pp"), qtTrId("mmHg"), &figures.mapOrPP}}};
    double y = grid.top;
    for (const StatisticRow& row : rows)
        drawRow(picture, grid, y -= grid.rowHeight, row, rect.right());
    picture.emplace_back(EndClip{});
    return picture;
}

} // namespace zel

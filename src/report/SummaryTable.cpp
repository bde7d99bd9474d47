#include "report/SummaryTable.h"

#include "report/FieldText.h"
#include "report/SummaryType.h"

#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr double labelWidth = 60, countWidth = 36, markRoom = 9, aboveFigures = 1.5, beforeMeasure = 12;

/// Right edges of a measure's numbers, behind which there is room for a mark.
struct MeasureColumns {
    double left, mean, minimum, maximum, deviation;

    MeasureColumns(double from, double width) : left(from) {
        mean = from + width * 0.27;
        minimum = from + width * 0.5;
        maximum = from + width * 0.73;
        deviation = from + width;
    }
    /// Of the numbers, without their marks.
    [[nodiscard]] std::array<double, 4> rooms() const {
        return {mean - left, minimum - mean - markRoom, maximum - minimum - markRoom,
                deviation - maximum - markRoom};
    }
    [[nodiscard]] std::array<double, 4> edges() const { return {mean, minimum, maximum, deviation}; }
};

double countEdge(const Rect& rect) { return rect.x + labelWidth + countWidth; }

std::array<MeasureColumns, 3> measureColumns(const Rect& rect) {
    const double first = countEdge(rect), width = (rect.right() - first) / 3;
    const auto columns = [&](int index) {
        return MeasureColumns(first + index * width + beforeMeasure, width - beforeMeasure);
    };
    return {columns(0), columns(1), columns(2)};
}

struct Figure {
    QString text;
    bool isMarked = false;
};

std::array<Figure, 4> figuresOf(const Spread& spread, std::uint32_t limit) {
    const QString none = u"\u2013"_s;
    if (spread.count() == 0) return {Figure{none}, {none}, {none}, {none}};
    const auto marked = [&](std::uint32_t value) {
        return Figure{QString::number(value), limit > 0 && value >= limit};
    };
    const QString deviation = spread.deviationWithTenths();
    return {Figure{spread.mean().withTenthsBeside(limit), isHigh(spread.mean(), limit)},
            marked(spread.minimum()), marked(spread.maximum()),
            Figure{deviation.isEmpty() ? none : deviation}};
}

void drawSpread(Picture& picture, const Spread& spread, std::uint32_t limit, const MeasureColumns& columns,
                double y) {
    const auto figures = figuresOf(spread, limit);
    const auto edges = columns.edges(), rooms = columns.rooms();
    for (std::size_t i = 0; i < figures.size(); ++i) {
        const auto& [text, isMarked] = figures[i];
        summaryFigure(picture, text, {edges[i], y}, rooms[i], isMarked ? summaryBold : summaryFont,
                      XPos::right);
        if (isMarked) summaryText(picture, highMark, {edges[i] + 0.5, y}, markRoom, summarySmall);
    }
}

/// Two lines, of which the lower one stands on \p y.
void drawTableHead(Picture& picture, const Rect& rect, double y) {
    const std::array<QString, 3> measures{qtTrId("summarySys"), qtTrId("summaryDia"), qtTrId("summaryRate")};
    const std::array<QString, 4> figures{qtTrId("summaryMean"), qtTrId("summaryMin"), qtTrId("summaryMax"),
                                         qtTrId("summarySD")};
    const double above = y + lineHeight(summarySmall);
    summaryText(picture, qtTrId("summaryReadings"), {countEdge(rect), y}, labelWidth + countWidth,
                summarySmall, XPos::right);
    const auto columns = measureColumns(rect);
    for (std::size_t i = 0; i < measures.size(); ++i) {
        summaryText(picture, measures[i], {columns[i].left, above}, columns[i].deviation - columns[i].left,
                    summaryBold);
        const auto edges = columns[i].edges(), rooms = columns[i].rooms();
        for (std::size_t k = 0; k < figures.size(); ++k)
            summaryText(picture, figures[k], {edges[k], y}, rooms[k], summarySmall, XPos::right);
    }
    picture.emplace_back(StraightLine{{rect.x, y - 1}, {rect.right(), y - 1}, 0.25, Qt::black});
}

} // namespace

double summaryTableHeight() {
    return summaryBlockHeight() + lineHeight(summaryBold) + lineHeight(summarySmall)
           + 3 * (lineHeight(summaryFont) + aboveFigures) + aboveFigures;
}

void drawSummaryTable(Picture& picture, const ReportSource& report, const SummaryFigures& figures,
                      const Rect& rect) {
    const Rect left = summaryBlock(picture, qtTrId("summaryTable"), rect);
    double y = left.top() - lineHeight(summaryBold) - lineHeight(summarySmall);
    drawTableHead(picture, rect, y);
    y -= aboveFigures;
    const auto columns = measureColumns(rect);
    const std::array<std::pair<QString, const PressureSpread*>, 3> rows{
        {{qtTrId("summaryAll"), &figures.all},
         {qtTrId("summaryMorning"), &figures.morning},
         {qtTrId("summaryEvening"), &figures.evening}}};
    for (const auto& [label, spread] : rows) {
        y -= lineHeight(summaryFont) + aboveFigures;
        summaryText(picture, label, {rect.x, y}, labelWidth, summaryFont);
        summaryFigure(picture, QString::number(spread->count()), {countEdge(rect), y}, countWidth,
                      summaryFont, XPos::right);
        drawSpread(picture, spread->sys, report.highFrom.sys, columns[0], y);
        drawSpread(picture, spread->dia, report.highFrom.dia, columns[1], y);
        drawSpread(picture, spread->pulse, 0, columns[2], y);
    }
}

} // namespace zel

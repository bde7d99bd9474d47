#include "chart/TrendScale.h"

#include "chart/Drawing.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int scaleNumberFont = 3, scaleUnitFont = 7, smallestUnit = 8;
constexpr double besidePlot = 2; ///< numbers stand clear of the plot's frame
constexpr double fittedStep = 10, leastFitted = 40;

/// The least and the greatest value so far.
struct Extent {
    double least = std::numeric_limits<double>::infinity();
    double most = -least;

    void add(double value) {
        least = std::min(least, value);
        most = std::max(most, value);
    }
};

/// From one line to the next: as near as the numbers have room, but no thicket of lines.
std::int64_t valuesPerLine(const ScaleRange& range, double height) {
    constexpr double air = 2;
    constexpr std::int64_t mostLines = 10;
    const std::int64_t span = range.most - range.least;
    const double needed = (attribute(scaleNumberFont).size + air) * static_cast<double>(span);
    for (const std::int64_t step : {10, 20, 40})
        if (span <= mostLines * step && height * static_cast<double>(step) >= needed) return step;
    return 100;
}

} // namespace

ScaleRange fittedRange(std::span<const TrendSeries> series, std::span<const TrendMeasure> measures,
                       std::span<const std::uint32_t> limits, const ScaleRange& usual) {
    const auto bottom = static_cast<double>(usual.least), top = static_cast<double>(usual.most);
    Extent extent;
    for (const TrendSeries& one : series)
        for (const TrendMeasure measure : measures)
            for (const MeasuredStep& step : measuredSteps(one, measure)) {
                extent.add(std::clamp(step.band.low, bottom, top));
                extent.add(std::clamp(step.band.high, bottom, top));
            }
    if (extent.most < extent.least) return usual;
    for (const std::uint32_t limit : limits)
        if (bottom <= limit && limit <= top) extent.add(limit);
    constexpr double clear = 1; // of the plot's frame
    double least = std::floor((extent.least - clear) / fittedStep) * fittedStep;
    double most = std::ceil((extent.most + clear) / fittedStep) * fittedStep;
    const double wider = std::ceil(std::max(0.0, leastFitted - (most - least)) / 2 / fittedStep) * fittedStep;
    least = std::clamp(least - wider, bottom, top - leastFitted);
    most = std::clamp(most + wider, bottom + leastFitted, top);
    return {static_cast<std::int64_t>(least), static_cast<std::int64_t>(most)};
}

void drawTrendScale(Picture& picture, const ChartScale& scale, const ScaleRange& range) {
    const Rect& plot = scale.chartRect;
    const TextAttribute font = attribute(scaleNumberFont);
    const double half = textSize(u"0"_s, font).height / 2;
    const std::int64_t step = valuesPerLine(range, plot.height);
    const auto perUnit = plot.height / static_cast<double>(range.most - range.least);
    for (std::int64_t value = range.least; value <= range.most; value += step) {
        const double y = plot.y + static_cast<double>(value - range.least) * perUnit;
        picture.emplace_back(StraightLine{{plot.x, y}, {plot.right(), y}, 1, fixColor(gcGrayLinecolor)});
        if (y + half > plot.top()) continue;
        textOut(picture, QString::number(value), {plot.x - besidePlot, y}, font, XPos::right, YPos::centre);
    }
}

void drawTrendUnit(Picture& picture, const ChartScale& scale, const QString& unit, double y) {
    const double room = scale.chartRect.x - besidePlot - scale.totalRect.x;
    TextAttribute font = attribute(scaleUnitFont);
    while (font.size > smallestUnit && textSize(unit, font).width > room)
        --font.size;
    textOut(picture, unit, {scale.totalRect.x, y}, font, XPos::left, YPos::centre);
}

} // namespace zel

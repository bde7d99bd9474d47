#include "chart/TrendCaption.h"

#include "chart/DrawTrend.h"
#include "chart/Drawing.h"
#include "chart/StyleTable.h"
#include "chart/TrendCurves.h"

#include <QCoreApplication>

#include <algorithm>

namespace zel {

namespace {

constexpr int captionFont = 1;

/// What the bands are made of.
struct BandKinds {
    bool all = false;         ///< all readings of a step
    bool percentiles = false; ///< those between two percentiles
};

BandKinds bandKinds(const TrendSeriesList& trend) {
    BandKinds kinds;
    for (const TrendSeries& series : trend.series)
        for (const TrendMeasure measure : {TrendMeasure::sys, TrendMeasure::pulse}) // DIA has those of SYS
            for (const MeasuredStep& step : measuredSteps(series, measure))
                (step.band.count < fewestForPercentiles ? kinds.all : kinds.percentiles) = true;
    return kinds;
}

/// What a point stands for and, if there are any, what its band is.
QString captionOfBand(const TrendSeriesList& trend) {
    const QString step = trendStepText(trend.step);
    const auto [all, percentiles] = bandKinds(trend);
    if (all && percentiles) return qtTrId("trendBand").arg(step);
    if (all) return qtTrId("trendBandAll").arg(step);
    return percentiles ? qtTrId("trendBandShort").arg(step) : step;
}

/// Each sentence begins a line.
QStringList captionLines(const QString& what, const QString& zone, double width) {
    const TextAttribute font = trendCaptionFont();
    QStringList lines;
    for (QString text : {what, zone})
        for (int length = 0; !text.isEmpty(); text = text.sliced(length).trimmed()) {
            length = std::max(1, getLineIndex(text, 0, width, font));
            lines += text.first(length).trimmed();
        }
    return lines;
}

} // namespace

TextAttribute trendCaptionFont() { return attribute(captionFont); }

TrendCaption trendCaption(const TrendSeriesList& trend, double width, int mostLines) {
    const bool hasDots = std::ranges::any_of(trend.series, hasLinks);
    const QString whole = captionOfBand(trend), step = trendStepText(trend.step);
    const auto withLinks = [&](const QString& text) {
        return hasDots ? qtTrId("trendLinked").arg(text) : text;
    };
    const QString zone = trend.ofOtherZone > 0 ? qtTrId("weekOtherZone", trend.ofOtherZone) : QString();
    for (const auto& [what, more] :
         {std::pair(withLinks(whole), zone), {withLinks(step), zone}, {withLinks(step), QString()}}) {
        const QStringList lines = captionLines(what, more, width);
        if (lines.size() <= mostLines) return {lines, true};
    }
    return {{step}, false};
}

} // namespace zel

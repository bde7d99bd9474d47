#include "analysis/Statistic.h"

#include "analysis/Log.h"
#include "store/RecordXml.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr std::uint32_t largestMinimum = 32766;

void add(MeasureStatistic& measure, std::uint32_t value) {
    measure.minimum = std::min(measure.minimum, value);
    measure.maximum = std::max(measure.maximum, value);
    measure.sum += static_cast<float>(value);
}

void average(MeasureStatistic& measure, float count) {
    constexpr long largest = std::numeric_limits<std::int32_t>::max();
    measure.average = static_cast<std::int32_t>(std::min(lroundf(measure.sum / count), largest));
}

void log(const StatisticFigures& figures) {
    const auto& [sys, dia, pulse, mapOrPP, count] = figures;
    const auto wide = [](float value) { return static_cast<double>(value); };
    qCDebug(lcAnalysis, "float %f %f %f %f count:%f", wide(sys.sum), wide(dia.sum), wide(pulse.sum),
            wide(mapOrPP.sum), wide(count));
    qCDebug(lcAnalysis, "rounded average %d %d %d %d", sys.average, dia.average, pulse.average,
            mapOrPP.average);
}

} // namespace

StatisticFigures calcStatistic(const ReadingList& readings, const ReadingSelection& selection, bool showMap) {
    StatisticFigures figures;
    for (const ReadingModel& reading : readings) {
        if (!isInStatistic(reading, selection)) continue;
        add(figures.sys, reading.sys);
        add(figures.dia, reading.dia);
        add(figures.pulse, reading.pulse);
        add(figures.mapOrPP, showMap ? reading.map : reading.pp);
        figures.count += 1;
    }
    if (figures.count > 0)
        for (MeasureStatistic* measure : {&figures.sys, &figures.dia, &figures.pulse, &figures.mapOrPP})
            average(*measure, figures.count);
    log(figures);
    return figures;
}

QString maxString(std::uint32_t value) { return value == 0 ? u"n/a"_s : toDecimal(value); }

QString minString(std::uint32_t value) { return value > largestMinimum ? u"n/a"_s : toDecimal(value); }

} // namespace zel

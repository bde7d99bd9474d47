#include "app/graph/ChartWords.h"

#include <algorithm>
#include <cmath>

namespace zel {

namespace {

class SpokenMeasure {
public:
    void add(std::uint32_t value) {
        lowest = count == 0 ? value : std::min(lowest, value);
        highest = std::max(highest, value);
        sum += value;
        ++count;
    }
    [[nodiscard]] QString words(const QString& name) const {
        if (count == 0) return {};
        const long average = std::lround(sum / static_cast<double>(count));
        return qtTrId("spokenMeasure").arg(name).arg(average).arg(lowest).arg(highest);
    }

private:
    std::uint32_t lowest = 0, highest = 0;
    double sum = 0;
    std::size_t count = 0;
};

} // namespace

ChartWords spokenFigures(const ChartSource& source) {
    SpokenMeasure sys, dia, pulse;
    for (const ChartReading& reading : source.data.maReading) {
        if (reading.isExcluded || !source.period.contains(reading.date)
            || !MatchedDataType(source.view, reading.isPMData))
            continue;
        sys.add(reading.sys);
        dia.add(reading.dia);
        pulse.add(reading.pulse);
    }
    QStringList pressures{sys.words(qtTrId("spokenSys")), dia.words(qtTrId("spokenDia"))};
    pressures.removeAll(QString());
    return {pressures.join(u'\n'), pulse.words(qtTrId("spokenPulse"))};
}

} // namespace zel

#include "app/graph/CorrelationView.h"

#include "analysis/Correlation.h"
#include "chart/DrawCorrelation.h"

namespace zel {

using namespace Qt::StringLiterals;

CorrelationView::CorrelationView(const DataStore& dataStore, const DisplayPeriod& displayPeriod,
                                 QWidget* parent)
    : PictureView(u"CorrelationView"_s, qtTrId("correlationView"), parent), store(dataStore),
      period(displayPeriod) {
    reload();
}

void CorrelationView::read() {
    setAccessibleDescription(words());
    invalidate();
}

Picture CorrelationView::makePicture(const Rect& rect) {
    const SettingModel& setting = store.getSetting();
    const ReadingList& readings = store.getReadingForCurID();
    return drawCorrelation(calcCorrelation(readings, period.selection()),
                           correlationOffScale(readings, period.selection()), setting.sysStandard,
                           setting.diaStandard, rect);
}

/// How many readings lie in each of the zones. A limit that is none divides nothing.
QString CorrelationView::words() const {
    const SettingModel& setting = store.getSetting();
    int total = 0, sysHigh = 0, diaHigh = 0, bothHigh = 0;
    for (const ReadingModel& reading : store.getReadingForCurID()) {
        if (!isCounted(reading, period.selection())) continue;
        const bool sys = setting.sysStandard > 0 && reading.sys > setting.sysStandard;
        const bool dia = setting.diaStandard > 0 && reading.dia > setting.diaStandard;
        ++total;
        sysHigh += static_cast<int>(sys && !dia);
        diaHigh += static_cast<int>(dia && !sys);
        bothHigh += static_cast<int>(sys && dia);
    }
    const auto line = [](const QString& zone, int count) { return qtTrId("infoLine").arg(zone).arg(count); };
    QStringList lines{qtTrId("readingCount", total)};
    const bool hasSys = setting.sysStandard > 0, hasDia = setting.diaStandard > 0;
    if (hasSys || hasDia) lines << line(qtTrId("normal"), total - sysHigh - diaHigh - bothHigh);
    if (hasSys) lines << line(qtTrId("sys too high"), sysHigh);
    if (hasDia) lines << line(qtTrId("dia too high"), diaHigh);
    if (hasSys && hasDia) lines << line(qtTrId("sys and dia too high"), bothHigh);
    lines << offScaleText(correlationOffScale(store.getReadingForCurID(), period.selection()));
    lines.removeAll(QString());
    return lines.join(u'\n');
}

} // namespace zel

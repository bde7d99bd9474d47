#include "app/graph/TrendInfo.h"

#include <algorithm>
#include <cmath>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// One decimal, half up; none for a whole number.
QString figure(double value) {
    const double tenths = std::floor(value * 10 + 0.5);
    return QString::number(tenths / 10, 'f', std::fmod(tenths, 10) == 0 ? 0 : 1);
}

/// The band only where it is one.
QString bandText(const TrendBand& band) {
    if (band.low == band.high) return figure(band.median);
    return qtTrId("trendFigures").arg(figure(band.median), figure(band.low), figure(band.high));
}

QString titleOf(const QString& title, ViewSelection half) {
    if (half == ViewSelection::amOnly) return qtTrId("trendInfoMorning").arg(title);
    return half == ViewSelection::pmOnly ? qtTrId("trendInfoEvening").arg(title) : title;
}

QString daysText(const TrendPoint& point, const Period& period, const SettingModel& setting) {
    const LocalZone zone;
    const DayNumber from = std::max(point.begin, zone.day(period.begin));
    const DayNumber to = std::min(point.end, zone.day(period.end));
    const QString first = dayText(from, setting.getDateFormat());
    return from == to ? first : qtTrId("trendDays").arg(first, dayText(to, setting.getDateFormat()));
}

void addFigures(ReadingInfo& info, const TrendPoint& point, ViewSelection half) {
    info.emplace_back(titleOf(qtTrId("trendReadings"), half), QString::number(point.count));
    info.emplace_back(titleOf(qtTrId("infoSys"), half), qtTrId("valueMmHg").arg(bandText(point.sys)));
    info.emplace_back(titleOf(qtTrId("infoDia"), half), qtTrId("valueMmHg").arg(bandText(point.dia)));
    info.emplace_back(titleOf(qtTrId("infoPulse"), half),
                      point.pulse ? qtTrId("valuePulse").arg(bandText(*point.pulse)) : u"–"_s);
}

} // namespace

ReadingInfo trendInfo(const TrendSeriesList& trend, DayNumber begin, const Period& period,
                      const SettingModel& setting) {
    ReadingInfo info;
    for (const TrendSeries& series : trend.series) {
        const auto point = std::ranges::find(series.points, begin, &TrendPoint::begin);
        if (point == series.points.end()) continue;
        if (info.empty()) info.emplace_back(qtTrId("trendPeriod"), daysText(*point, period, setting));
        addFigures(info, *point, series.half);
    }
    return info;
}

} // namespace zel

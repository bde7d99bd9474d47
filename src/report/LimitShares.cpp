#include "report/LimitShares.h"

#include <cmath>

namespace zel {

using namespace Qt::StringLiterals;

LimitShares limitShares(const ReadingList& readings, const ReadingSelection& selection, CountRule rule,
                        const SettingModel& settings) {
    LimitShares shares;
    for (const ReadingModel& reading : readings) {
        if (!rule(reading, selection)) continue;
        const bool sys = settings.sysStandard > 0 && reading.sys > settings.sysStandard;
        const bool dia = settings.diaStandard > 0 && reading.dia > settings.diaStandard;
        ++shares.total;
        ++(sys ? (dia ? shares.bothTooHigh : shares.sysTooHigh)
               : (dia ? shares.diaTooHigh : shares.keepBoth));
    }
    return shares;
}

QString percentText(int count, int total) {
    const long percent = std::lround(100.0 * count / total);
    if (percent == 0 && count > 0) return u"< 1 %"_s;
    if (percent == 100 && count < total) return u"> 99 %"_s;
    return QString::number(percent) + u" %"_s;
}

QString shareText(int count, int total) {
    if (total == 0) return QString::number(count);
    return QString::number(count) + u" ("_s + percentText(count, total) + u')';
}

} // namespace zel

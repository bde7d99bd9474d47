#include "store/ManualReading.h"

#include <QList>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace zel {

namespace {

auto minuteOf(Instant time) { return std::chrono::floor<std::chrono::minutes>(time); }

constexpr std::chrono::sys_days firstManualDate{std::chrono::year{1900} / 1 / 1};
constexpr DayNumber firstManualDay{firstManualDate.time_since_epoch().count()};

bool isInRange(std::uint32_t value) { return leastManualValue <= value && value <= mostManualValue; }

/// Turns the direction of what stands behind it, also where another text is put there.
bool turnsDirection(QChar c) {
    return (c >= QChar{0x202A} && c <= QChar{0x202E}) || (c >= QChar{0x2066} && c <= QChar{0x2069});
}

/// What an element can hold on one line.
bool isPlain(QChar c) {
    return c.category() != QChar::Other_Control && c != QChar{0xFFFE} && c != QChar{0xFFFF}
           && !turnsDirection(c);
}

bool canBeSeen(const QString& text) {
    const QList<uint> characters = text.toUcs4();
    return std::ranges::any_of(characters, [](char32_t c) {
        return !QChar::isSpace(c) && QChar::category(c) != QChar::Other_Format;
    });
}

} // namespace

ManualReading ManualReading::of(const ReadingModel& reading) {
    return {reading.ReadingDate, reading.sys, reading.dia, reading.pulse};
}

ReadingModel ManualReading::writtenOver(ReadingModel reading) const {
    const LocalZone zone; // an hour that the clocks repeat has each minute twice
    const bool isSameMinute =
        time && reading.ReadingDate
        && minuteOf(*zone.wallClock(time)) == minuteOf(*zone.wallClock(reading.ReadingDate));
    if (!isSameMinute) {
        reading.ReadingDate = time;
        reading.utcOffset = ReadingModel::noOffset; // it will be stored with the one of here
    }
    reading.sys = sys;
    reading.dia = dia;
    reading.pulse = pulse;
    reading.map = dia + (sys - dia) / 3; // as the monitor's readings have it
    reading.pp = sys - dia;
    reading.isManual = true;
    return reading;
}

Date typedTime(const QString& date, const QString& time) {
    const QString pattern = QStringLiteral("yyyy-MM-dd HH:mm");
    const QString typed = date + u' ' + time;
    const Date read = StrToDate(typed, pattern);
    return DateToStr(read, pattern) == typed ? read : Date{};
}

std::optional<ManualProblem> manualProblem(const ManualReading& typed, Instant now) {
    if (!typed.time || isUndatedDay(LocalZone{}.day(typed.time))) return ManualProblem::noDate;
    if (LocalZone{}.day(typed.time) < firstManualDay) return ManualProblem::tooEarly;
    if (minuteOf(*typed.time) > minuteOf(now)) return ManualProblem::inFuture;
    if (!isInRange(typed.sys)) return ManualProblem::sys;
    if (!isInRange(typed.dia)) return ManualProblem::dia;
    if (!isInRange(typed.pulse)) return ManualProblem::pulse;
    if (typed.dia >= typed.sys) return ManualProblem::diaNotBelowSys;
    return std::nullopt;
}

QString describe(ManualProblem problem) {
    const auto range = [](const QString& text) { return text.arg(leastManualValue).arg(mostManualValue); };
    switch (problem) {
    case ManualProblem::noDate: return qtTrId("ManualNoDate");
    case ManualProblem::tooEarly: return qtTrId("ManualTooEarly");
    case ManualProblem::inFuture: return qtTrId("ManualInFuture");
    case ManualProblem::sys: return range(qtTrId("ManualSys"));
    case ManualProblem::dia: return range(qtTrId("ManualDia"));
    case ManualProblem::pulse: return range(qtTrId("ManualPulse"));
    case ManualProblem::diaNotBelowSys: return qtTrId("ManualDiaNotBelowSys");
    }
    return {};
}

QString describe(const StillLeftOut& readings) {
    QStringList lines;
    if (readings.countTwice > 0) lines += qtTrId("stillLeftOutTwice", readings.countTwice);
    for (const auto& [problem, count] : readings.refused)
        lines += qtTrId("stillLeftOutRefused", count).arg(describe(problem));
    return lines.join(u'\n');
}

QString describe(const TakenInAgain& readings) {
    QStringList lines;
    if (!readings.still.isNone()) lines += describe(readings.still);
    if (readings.leftOut > 0) lines += qtTrId("takenInTypedLeftOut", readings.leftOut);
    return lines.join(u'\n');
}

QString exclusionReason(const QString& typed) {
    QString kept;
    std::ranges::copy_if(typed.simplified(), std::back_inserter(kept), isPlain);
    kept = kept.simplified();
    if (!canBeSeen(kept)) return {};
    return kept == describeReason(measuredReason.toString()) ? measuredReason.toString() : kept;
}

QString describeExclusion(const ReadingModel& reading) {
    if (!reading.isExcluded()) return {};
    const QString reason = reading.exclusion.simplified();
    return reason.isEmpty() ? qtTrId("ExcludedWithoutReason") : describeReason(reason);
}

QString describeReason(const QString& stored) {
    return stored == measuredReason ? qtTrId("ExcludedAsMeasured") : stored;
}

QString describeRemark(const ReadingModel& reading) {
    QStringList remarks;
    if (reading.isManual) remarks += qtTrId("remarkManual");
    if (reading.isExcluded()) remarks += qtTrId("remarkExcluded").arg(describeExclusion(reading));
    return remarks.join(qtTrId("; "));
}

} // namespace zel

#include "monitor/SimulatedMonitorPlan.h"

#include "store/Dates.h"

#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr int builtInDays = 31;
constexpr int undatedEvery = 29;
constexpr int averagedEvery = 4;
constexpr int arrhythmicEvery = 17;

/// Numbers that look irregular and are the same each time.
class Sequence {
public:
    /// The next number from -\p spread to \p spread.
    int around(int spread) {
        state = state * 1103515245U + 12345U;
        return static_cast<int>((state >> 16U) % (2U * static_cast<unsigned>(spread) + 1U)) - spread;
    }

private:
    std::uint32_t state = 20;
};

/// The flag byte: raw with a finding, printable without; 1 for an average of several measurements.
char flagOf(int number) {
    const bool averaged = number % averagedEvery == 3;
    if (number % arrhythmicEvery == 11) return averaged ? '\1' : '\0';
    return averaged ? '1' : '0';
}

SimulatedReading made(const QString& time, bool evening, int number, Sequence& sequence) {
    const int level = sequence.around(7);
    return {.time = number % undatedEvery == 8 ? u"0000000000"_s : time,
            .flag = flagOf(number),
            .sys = (evening ? 129 : 136) + level + sequence.around(5),
            .dia = (evening ? 79 : 85) + level / 2 + sequence.around(4),
            .pulse = (evening ? 72 : 66) + sequence.around(6)};
}

} // namespace

std::string encode(const SimulatedReading& reading) {
    std::string record = reading.time.toLatin1().toStdString();
    record.push_back(reading.flag);
    record += "000000";
    const auto hex = [](int value, int digits) {
        return u"%1"_s.arg(value, digits, 16, QLatin1Char('0')).toUpper().toLatin1().toStdString();
    };
    // The diastolic value has ten bits, at the top of its twelve.
    return record + hex(reading.pulse, 2) + hex(reading.dia << 2, 3) + hex(reading.sys, 2) + "00000000";
}

SimulatedMonitorPlan builtInPlan(WallTime now) {
    SimulatedMonitorPlan plan;
    Sequence sequence;
    int number = 0;
    for (int daysAgo = builtInDays; daysAgo > 0; --daysAgo) {
        const Instant day = std::chrono::floor<std::chrono::milliseconds>(now - std::chrono::days{daysAgo});
        const QString date = DateToStr(day, u"yyMMdd"_s);
        for (const bool evening : {false, true}) {
            const int minute = 30 + sequence.around(29);
            const QString time =
                date + (evening ? u"20"_s : u"07"_s) + u"%1"_s.arg(minute, 2, 10, QLatin1Char('0'));
            plan.records.push_back(encode(made(time, evening, number++, sequence)));
        }
    }
    return plan;
}

} // namespace zel

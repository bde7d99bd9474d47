#pragma once
// The average of a week of home readings as guidelines for it order; docs/clinical.md has the rules and where
// they come from.

#include "analysis/PressureMeans.h"
#include "store/RecordLinks.h"

#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace zel {

enum class AverageRule : std::int32_t { esh, nice, aha };

/// What a rule asks of the week's measuring days, which are those with a reading.
struct AverageRuleFacts {
    AverageRule rule;
    const char* key;            ///< as the command line calls it
    int days;                   ///< measuring days needed, the first one included
    bool isFirstDayLeftOut;     ///< the readings of the first measuring day do not count
    int readings;               ///< of those that count; 0: asked for by the half of the day
    int perHalfDay;             ///< before noon as from noon on, on each day that counts; 0: not asked for
    std::uint32_t sysThreshold; ///< mmHg, for the mean
    std::uint32_t diaThreshold;
};

inline constexpr std::array averageRules{
    AverageRuleFacts{AverageRule::esh, "esh", 3, true, 12, 0, 135, 85},
    AverageRuleFacts{AverageRule::nice, "nice", 4, true, 0, 2, 135, 85},
    AverageRuleFacts{AverageRule::aha, "aha", 3, false, 12, 0, 130, 80},
};

[[nodiscard]] constexpr const AverageRuleFacts& factsOf(AverageRule rule) {
    return averageRules[static_cast<std::size_t>(rule)];
}
[[nodiscard]] std::optional<AverageRule> averageRuleNamed(const QString& key);

/// What a rule makes of the seven days that end with a day.
struct MeasuringWeek {
    AverageRule rule = AverageRule::esh;
    DayNumber begin = noDay; ///< noDay: there is no dated reading, and no end was told
    DayNumber end = noDay;
    DayNumber firstUsed = noDay; ///< readings of the week's days before it do not count
    PressureMeans all{};         ///< of the readings that count
    PressureMeans morning{};
    PressureMeans evening{};
    int daysUsed = 0; ///< measuring days that count
    int daysLeftOut = 0;
    int readingsLeftOut = 0; ///< those of the days left out
    int excluded = 0;        ///< readings of the week that are left out; without a week, of its days
    int excludedLater = 0;   ///< where no end was told: those of later days, with which it would end
    int unmeasured = 0;      ///< readings of the week, or later where no end was told, without pressures
    int ofOtherZone = 0; ///< readings of the week that were stored in another time zone than the computer's
    int missingDays = 0;
    int missingReadings = 0;
    int missingMornings = 0; ///< readings, like the next
    int missingEvenings = 0;

    [[nodiscard]] std::uint64_t readingsUsed() const { return all.count(); }
    [[nodiscard]] bool isComplete() const;
    /// Whether one of the means, not rounded, is at its threshold or above.
    [[nodiscard]] bool reachesThreshold() const;
};

/// Whether the reading is one of those that \p week is the mean of.
[[nodiscard]] bool isUsed(const ReadingModel& reading, const MeasuringWeek& week);

/// The last day with a reading that averages count; noDay for none.
[[nodiscard]] DayNumber lastMeasuringDay(const ReadingList& readings);

/// The week that ends with \p end, or with the last day that has a reading. Undated readings are none.
[[nodiscard]] MeasuringWeek calcMeasuringWeek(const ReadingList& readings, AverageRule rule,
                                              std::optional<DayNumber> end = {});

/// "1 more day, 2 more evenings"; empty where nothing is missing.
[[nodiscard]] QString describeMissing(const MeasuringWeek& week);

} // namespace zel

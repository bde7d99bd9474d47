#pragma once
// Measures as people type them, turned into the texts that a PatientModel converts: a number with a point, or
// feet/inches. An empty text stands for a measure that is not given, which 0 means as well. None comes back
// for what is no such measure, or one that no human has.

#include "store/SettingModel.h"

#include <QString>

#include <optional>

namespace zel {

/// In kg or lb, as the settings say; the unit may stand behind the number.
[[nodiscard]] std::optional<QString> weightText(const QString& typed, const SettingModel& settings);
/// In cm, or as 5/9, 5'9" or 5 ft 9 in.
[[nodiscard]] std::optional<QString> heightText(const QString& typed, const SettingModel& settings);
/// In mg/dL.
[[nodiscard]] std::optional<QString> cholestrolText(const QString& typed);

// The values of weights and heights, also when the other system's unit is written out; 0 for not given.
[[nodiscard]] std::optional<float> weightInKg(const QString& typed, const SettingModel& settings);
[[nodiscard]] std::optional<float> heightInCm(const QString& typed, const SettingModel& settings);

} // namespace zel

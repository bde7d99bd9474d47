#pragma once

#include "analysis/Correlation.h"
#include "chart/Picture.h"

#include <span>

namespace zel {

/// Systolic pressure across, diastolic up, with the two limits (mmHg) and what they divide.
[[nodiscard]] Picture drawCorrelation(std::span<const CorrelationPoint> points, std::uint32_t sysStandard,
                                      std::uint32_t diaStandard, const Rect& rect);

} // namespace zel

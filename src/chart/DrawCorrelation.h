#pragma once

#include "analysis/Correlation.h"
#include "chart/OffScale.h"
#include "chart/Picture.h"

#include <span>

namespace zel {

/// Of the readings that calcCorrelation() takes, those that have no place in the picture.
[[nodiscard]] OffScale correlationOffScale(const ReadingList& readings, const ReadingSelection& selection);

/// Systolic pressure across, diastolic up, with the two limits (mmHg; 0: none) and what they divide.
[[nodiscard]] Picture drawCorrelation(std::span<const CorrelationPoint> points, const OffScale& offScale,
                                      std::uint32_t sysStandard, std::uint32_t diaStandard, const Rect& rect);

} // namespace zel

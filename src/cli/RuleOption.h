#pragma once

#include "analysis/MeasuringWeek.h"
#include "cli/Command.h"

namespace zel::cli {

/// The rule of --rule; esh where it was not given.
[[nodiscard]] tl::expected<AverageRule, Failure> ruleOption(const Request& request);

} // namespace zel::cli

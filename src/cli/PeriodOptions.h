#pragma once

#include "analysis/ReadingSelection.h"
#include "cli/Command.h"
#include "store/RecordLinks.h"

namespace zel::cli {

/// The days of --from and --to, both included; either may be left open.
struct DayRange {
    Date from;
    Date to;

    [[nodiscard]] bool isOpen() const { return !from && !to; }
};

/// The day that the option gives, as its begin; none if it was not given.
[[nodiscard]] tl::expected<Date, Failure> dayOption(const Request& request, const QString& option);

[[nodiscard]] tl::expected<DayRange, Failure> dayRange(const Request& request);

/// Whole days; an open end is that of the patient's dated readings.
[[nodiscard]] Period periodOf(const DayRange& days, const ReadingList& readings, const Clock& clock);

} // namespace zel::cli

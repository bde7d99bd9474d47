#pragma once

#include "analysis/ReadingSelection.h"
#include "cli/Command.h"
#include "store/RecordLinks.h"

#include <optional>

namespace zel::cli {

/// The days of --from and --to, both included; either may be left open. Or the \p last days up to that of
/// --to.
struct DayRange {
    Date from;
    Date to;
    std::optional<int> last = std::nullopt;

    [[nodiscard]] bool isOpen() const { return !from && !to && !last; }
};

/// The day that the option gives, as its begin; none if it was not given.
[[nodiscard]] tl::expected<Date, Failure> dayOption(const Request& request, const QString& option);

[[nodiscard]] tl::expected<DayRange, Failure> dayRange(const Request& request);

/// The half of the day of --am or --pm; viewAll for both.
[[nodiscard]] tl::expected<ViewSelection, Failure> viewOption(const Request& request);

/// Whole days, never reversed; an open end is that of the patient's dated readings, which the last days count
/// back from, too, or the day of the other end where no reading lies behind it.
[[nodiscard]] Period periodOf(const DayRange& days, const ReadingList& readings, const Clock& clock);

} // namespace zel::cli

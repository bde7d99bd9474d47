#pragma once

#include "report/ReportSource.h"
#include "report/Section.h"

#include <compare>
#include <span>
#include <tuple>
#include <vector>

namespace zel {

/// Which of the readings that are left out a document counts somewhere, and so has to name.
struct LeftOutScope {
    bool isOfPeriod = false;   ///< those of the reporting period
    bool isOfSummary = false;  ///< also of the measuring week, and before and since the period's comments
    bool isOfComments = false; ///< also before and since any comment

    bool operator==(const LeftOutScope&) const = default;
    bool operator<(const LeftOutScope& other) const {
        return std::tie(isOfPeriod, isOfSummary, isOfComments)
               < std::tie(other.isOfPeriod, other.isOfSummary, other.isOfComments);
    }
};
[[nodiscard]] LeftOutScope leftOutScope(std::span<const Section> sections);

/// Of all times of the day, in the order of the report's readings, whose they are.
[[nodiscard]] std::vector<const ReadingModel*> leftOutReadings(const ReportSource& report,
                                                               const LeftOutScope& scope);

} // namespace zel

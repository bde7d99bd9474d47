#pragma once
// The limits of the blood pressure, above which values count as too high: in mmHg, 0 for none.

#include <QString>

#include <cstdint>
#include <optional>

namespace zel {

/// From \p least to \p most, or 0.
struct LimitRange {
    std::uint32_t least;
    std::uint32_t most;
    [[nodiscard]] constexpr bool takes(std::uint32_t limit) const {
        return limit == 0 || (limit >= least && limit <= most);
    }
};
inline constexpr LimitRange systolicLimits{60, 260};
inline constexpr LimitRange diastolicLimits{30, 160};
[[nodiscard]] QString describe(const LimitRange& range);

enum class LimitProblem {
    systolic,  ///< outside its range
    diastolic, ///< outside its range
    order,     ///< the diastolic limit is not below the systolic one
};
/// The first thing that is wrong with the two.
[[nodiscard]] std::optional<LimitProblem> limitProblem(std::uint32_t systolic, std::uint32_t diastolic);
[[nodiscard]] QString describe(LimitProblem problem);

} // namespace zel

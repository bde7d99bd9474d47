#pragma once
// From where on a view marks values as high. This is no setting of the data file, whose own limits are those
// of chart, statistics, histogram and correlation.

#include "store/StoreError.h"

#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>

namespace zel {

/// mmHg; 0: none.
struct LimitPair {
    std::uint32_t sys = 0;
    std::uint32_t dia = 0;

    bool operator==(const LimitPair&) const = default;
};

enum class LimitChoice : std::int32_t { home, office, low, own };

/// The choices but own, in their order; docs/clinical.md says where they come from.
inline constexpr std::array knownLimits{LimitPair{135, 85}, LimitPair{140, 90}, LimitPair{130, 80}};

/// The limits of choice, and the user's own, which are kept while others are chosen.
struct ViewLimits {
    LimitChoice choice = LimitChoice::home; ///< of a monitor at home, as the measuring week's usual rule
    LimitPair own = knownLimits.front();    ///< as limitProblem() takes them

    bool operator==(const ViewLimits&) const = default;
    [[nodiscard]] constexpr LimitPair limits() const {
        return choice == LimitChoice::own ? own : knownLimits.at(static_cast<std::size_t>(choice));
    }
};

/// The choice made for this data file, the usual one where none was made. It is a file beside the data file,
/// which is read whole or not at all.
[[nodiscard]] tl::expected<ViewLimits, StoreError> readViewLimits(const QString& dataFile);
/// What else the file holds stays. Own limits that limitProblem() refuses are not written: invalidRecord.
[[nodiscard]] StoreResult writeViewLimits(const QString& dataFile, const ViewLimits& limits);
/// That the choice could not be read, and what holds instead.
[[nodiscard]] QString describeUnreadLimits(const StoreError& error);

} // namespace zel

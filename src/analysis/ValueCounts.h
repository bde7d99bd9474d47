#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace zel {

/// Whole numbers in their order, by how often each of the small ones occurs: pressures and pulses are small,
/// and counting thousands of them takes a fraction of the time of sorting.
class ValueCounts {
public:
    void add(std::uint32_t value) {
        ++total;
        if (value >= counts.size()) return large.push_back(value);
        ++counts[value];
        least = std::min(least, value);
        most = std::max(most, value);
    }
    [[nodiscard]] std::size_t size() const { return total; }
    /// Between two of them in proportion to the distance; of one at least. \p share: 0 for the lowest, 1 for
    /// the highest one.
    [[nodiscard]] double quantile(double share);
    void clear();

private:
    /// The one at that place, the lowest one at 0.
    [[nodiscard]] double at(std::size_t place) const;

    static constexpr std::uint32_t beyond = 512;
    std::array<std::uint32_t, beyond> counts{};
    std::uint32_t least = beyond; ///< of the small ones
    std::uint32_t most = 0;
    std::vector<std::uint32_t> large; ///< the others
    std::size_t total = 0;
};

} // namespace zel

#include "analysis/ValueCounts.h"

namespace zel {

double ValueCounts::quantile(double share) {
    std::ranges::sort(large);
    const double place = share * static_cast<double>(total - 1);
    const auto below = static_cast<std::size_t>(place);
    const double low = at(below);
    return low + (at(std::min(below + 1, total - 1)) - low) * (place - static_cast<double>(below));
}

double ValueCounts::at(std::size_t place) const {
    for (std::uint32_t value = least; value <= most; ++value) {
        if (place < counts[value]) return value;
        place -= counts[value];
    }
    return large[place];
}

void ValueCounts::clear() {
    for (std::uint32_t value = least; value <= most; ++value)
        counts[value] = 0;
    least = beyond;
    most = 0;
    large.clear();
    total = 0;
}

} // namespace zel

#include "analysis/Spread.h"

#include <algorithm>
#include <cmath>

namespace zel {

void Spread::add(std::uint32_t value) {
    average.add(value);
    least = std::min(least, value);
    most = std::max(most, value);
    const auto wide = static_cast<long double>(value);
    sum += wide;
    squares += wide * wide;
}

QString Spread::deviationWithTenths() const {
    if (count() < 2) return {};
    const auto total = static_cast<long double>(count());
    const long double above = total * squares - sum * sum;
    const long double below = total * (total - 1);
    // A root is seldom a whole number of tenths, but where it is half of one, the squares tell it exactly.
    const auto isReached = [=](std::uint64_t tenths) {
        const auto twice = static_cast<long double>(2 * tenths - 1);
        return twice * twice * below <= 400 * above;
    };
    const auto whole = static_cast<std::uint64_t>(std::floor(10 * std::sqrt(above / below)));
    const std::uint64_t tenths = isReached(whole + 1) ? whole + 1 : whole;
    return QString::number(tenths / 10) + u'.' + QString::number(tenths % 10);
}

} // namespace zel

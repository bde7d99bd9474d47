#pragma once

#include <QString>

#include <cstdint>

namespace zel {

/// The mean of whole numbers, kept as sum and count so that it is rounded once, halves upwards, when it is
/// shown.
class ExactMean {
public:
    void add(std::uint32_t value) {
        sum += value;
        ++counted;
    }
    /// Of the values that were added since it was \p earlier.
    ExactMean operator-(const ExactMean& earlier) const {
        ExactMean rest;
        rest.sum = sum - earlier.sum;
        rest.counted = counted - earlier.counted;
        return rest;
    }
    [[nodiscard]] std::uint64_t count() const { return counted; }
    /// Whether the mean, not rounded, is \p limit or more; false without a value.
    [[nodiscard]] bool isAtLeast(std::uint32_t limit) const;
    /// The others need a value at least.
    [[nodiscard]] std::uint64_t rounded() const;
    [[nodiscard]] QString withTenths() const; ///< "134.5"
    // Likewise, but "<135" and "<135.0" for a mean below the limit that rounding alone would show as the
    // limit, which has a meaning beside it; 0 for none.
    [[nodiscard]] QString roundedBeside(std::uint32_t limit) const;
    [[nodiscard]] QString withTenthsBeside(std::uint32_t limit) const;

private:
    [[nodiscard]] QString beside(std::uint32_t limit, const QString& shown, const QString& shownLimit) const;

    std::uint64_t sum = 0;
    std::uint64_t counted = 0;
};

} // namespace zel

#pragma once

#include "analysis/ExactMean.h"

namespace zel {

/// Mean, extremes and standard deviation of whole numbers, rounded once, halves upwards, when they are shown.
class Spread {
public:
    void add(std::uint32_t value);
    [[nodiscard]] const ExactMean& mean() const { return average; }
    [[nodiscard]] std::uint64_t count() const { return average.count(); }
    // The extremes need a value at least.
    [[nodiscard]] std::uint32_t minimum() const { return least; }
    [[nodiscard]] std::uint32_t maximum() const { return most; }
    /// Of a sample, whose squares are divided by one less than their number; "8.4", empty for fewer than two.
    [[nodiscard]] QString deviationWithTenths() const;

private:
    ExactMean average;
    std::uint32_t least = UINT32_MAX;
    std::uint32_t most = 0;
    // Whole numbers, exact up to 64 bits: ten million readings of 999.
    long double sum = 0;
    long double squares = 0;
};

} // namespace zel

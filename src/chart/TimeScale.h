#pragma once

#include "store/Dates.h"

#include <cmath>

namespace zel {

/// Where the instants of a period lie from left to right.
struct TimeScale {
    Instant begin{};
    Instant end{};
    double left = 0;  ///< x of begin
    double width = 0; ///< from begin to end

    [[nodiscard]] double calcXPos(Instant date) const {
        if (end == begin) return left;
        return span(begin, date) * width / span(begin, end) + left;
    }

    /// The inverse, to the millisecond; begin where there is no width.
    [[nodiscard]] Instant XPosToDate(double x) const {
        if (width == 0) return begin;
        const double past = (x - left) / width * span(begin, end);
        return begin + Instant::duration(std::llround(past));
    }

private:
    static double span(Instant from, Instant to) { return static_cast<double>((to - from).count()); }
};

} // namespace zel

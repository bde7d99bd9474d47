#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zel {

/// One row of the table that scripts/bench prints.
struct Figure {
    std::string what;    ///< what is measured, with its size: "Load of 100,000 readings"
    std::string unit;    ///< of the two values, "ms"
    double ours = 0;     ///< of this program
    std::string against; ///< the bare limit or the alternative, measured in the same run; empty: nothing
    double bare = 0;     ///< its value
    double target = 0;   ///< the ratio at most, or, without anything to compare, the value at most
    double ratio = 0;    ///< where the median of pairs is better than ours / bare; 0: is computed
};

/// Prints it as a line of fields between tabs: what, ours, unit, against, bare, ratio, target, "yes" or "no".
void print(const Figure& figure);

/// \return true with "--small": data that take seconds, to see that everything runs; the values then mean
/// nothing
[[nodiscard]] bool isSmall(int argc, const char* const* argv);

/// \return seconds of one call
[[nodiscard]] double seconds(const std::function<void()>& work);
/// The same in this process's own time, so that a busy machine does not count: for what neither waits nor has
/// threads. Begins with as little memory as a program that has just started: what earlier calls have freed
/// would else be at hand for one and not for the other.
[[nodiscard]] double processorSeconds(const std::function<void()>& work);

/// Of at least one value.
[[nodiscard]] double median(std::vector<double> values);

/// Medians of so many calls in turn, in seconds, so that a drift of the machine's speed cancels out.
struct Pair {
    double ours = 0;
    double bare = 0;
    double ratio = 0; ///< the median of the pairs' ratios
};
[[nodiscard]] Pair inTurn(int rounds, const std::function<void()>& ours, const std::function<void()>& bare,
                          double (*measure)(const std::function<void()>&) = seconds);

} // namespace zel

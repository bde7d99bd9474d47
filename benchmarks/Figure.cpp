#include "Figure.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string_view>
#include <vector>

namespace zel {

namespace {

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

} // namespace

void print(const Figure& figure) {
    const bool isCompared = figure.bare > 0;
    const double ratio = figure.ratio > 0 ? figure.ratio : isCompared ? figure.ours / figure.bare : 0;
    const bool isMet = (isCompared ? ratio : figure.ours) <= figure.target;
    std::printf("%s\t%.3g\t%s\t%s\t%.3g\t%.3g\t%.3g\t%s\n", figure.what.c_str(), figure.ours,
                figure.unit.c_str(), figure.against.c_str(), figure.bare, ratio, figure.target,
                isMet ? "yes" : "no");
    std::fflush(stdout);
}

bool isSmall(int argc, const char* const* argv) {
    return std::any_of(argv + 1, argv + argc, [](std::string_view word) { return word == "--small"; });
}

double seconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

Pair inTurn(int rounds, const std::function<void()>& ours, const std::function<void()>& bare) {
    std::vector<double> own, other, ratios;
    for (int round = 0; round < rounds; ++round) {
        own.push_back(seconds(ours));
        other.push_back(seconds(bare));
        ratios.push_back(own.back() / other.back());
    }
    return {median(own), median(other), median(ratios)};
}

} // namespace zel

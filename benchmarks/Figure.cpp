#include "Figure.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <string_view>

namespace zel {

namespace {

/// Three digits, and no powers of ten.
std::string shown(double value) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), value >= 100 ? "%.0f" : "%.3g", value);
    return text.data();
}

} // namespace

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

void print(const Figure& figure) {
    const bool isCompared = figure.bare > 0;
    const double ratio = figure.ratio > 0 ? figure.ratio : isCompared ? figure.ours / figure.bare : 0;
    const bool isMet = (isCompared ? ratio : figure.ours) <= figure.target;
    std::printf("%s\t%s\t%s\t%s\t%s\t%s\t%s\t%s\n", figure.what.c_str(), shown(figure.ours).c_str(),
                figure.unit.c_str(), figure.against.c_str(), shown(figure.bare).c_str(), shown(ratio).c_str(),
                shown(figure.target).c_str(), isMet ? "yes" : "no");
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

double processorSeconds(const std::function<void()>& work) {
    malloc_trim(0);
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

Pair inTurn(int rounds, const std::function<void()>& ours, const std::function<void()>& bare,
            double (*measure)(const std::function<void()>&)) {
    std::vector<double> own, other, ratios;
    for (int round = 0; round < rounds; ++round) {
        own.push_back(measure(ours));
        other.push_back(measure(bare));
        ratios.push_back(own.back() / other.back());
    }
    return {median(own), median(other), median(ratios)};
}

} // namespace zel

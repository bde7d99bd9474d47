#include "chart/CurvePieces.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace zel {

namespace {

/// Where in the pattern of dashes and gaps the pen is.
class DashWalk {
public:
    explicit DashWalk(std::span<const double> lengths) : pattern(lengths), left(lengths.front()) {}

    void along(const Segment& whole, std::vector<Segment>& pieces) {
        const double dx = whole.to.x - whole.from.x, dy = whole.to.y - whole.from.y;
        const double length = std::hypot(dx, dy);
        const auto at = [&](double done) {
            return Point{whole.from.x + dx * done / length, whole.from.y + dy * done / length};
        };
        for (double done = 0; done < length;) {
            const double end = std::min(length, done + left);
            if (number % 2 == 0) pieces.push_back({at(done), at(end)});
            left -= end - done;
            done = end;
            if (left <= nothing) next();
        }
    }

private:
    static constexpr double nothing = 1e-6; ///< what rounding leaves would never be gone

    void next() {
        number = (number + 1) % pattern.size();
        left = pattern[number];
    }

    std::span<const double> pattern;
    std::size_t number = 0;
    double left; ///< of the dash or the gap
};

/// A pattern of no length would never come to an end.
bool isDashed(const Curve& curve) {
    return !curve.dashes.empty()
           && std::ranges::all_of(curve.dashes, [](double length) { return length >= 0.5; });
}

} // namespace

std::vector<Segment> curvePieces(const Curve& curve) {
    std::vector<Segment> pieces;
    pieces.reserve(curve.points.size());
    if (curve.points.size() < 2) return pieces;
    std::optional<DashWalk> walk;
    if (isDashed(curve)) walk.emplace(curve.dashes);
    for (std::size_t index = 1; index < curve.points.size(); ++index) {
        const Segment whole{curve.points[index - 1], curve.points[index]};
        if (walk)
            walk->along(whole, pieces);
        else
            pieces.push_back(whole);
    }
    return pieces;
}

} // namespace zel

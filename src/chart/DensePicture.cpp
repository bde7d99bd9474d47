#include "chart/DensePicture.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace zel {

namespace {

/// Farther out than this, ends are brought near: what is seen of the stroke stays the same to a fraction of a
/// pixel.
constexpr double far = 10000;
/// Marks reach two pixels around their point.
constexpr double reach = 3;

bool outside(const Segment& stroke, const Rect& sight) {
    const auto [left, right] = std::minmax(stroke.from.x, stroke.to.x);
    const auto [bottom, top] = std::minmax(stroke.from.y, stroke.to.y);
    return right < sight.x || left > sight.right() || top < sight.y || bottom > sight.top();
}

/// The part of the stroke within the area, or none.
std::optional<Segment> within(const Segment& stroke, const Rect& area) {
    double begin = 0;
    double end = 1;
    const auto limit = [&](double from, double by, double low, double high) {
        if (by == 0) return low <= from && from <= high;
        const auto [first, last] = std::minmax({(low - from) / by, (high - from) / by});
        begin = std::max(begin, first);
        end = std::min(end, last);
        return begin <= end;
    };
    const double dx = stroke.to.x - stroke.from.x;
    const double dy = stroke.to.y - stroke.from.y;
    if (!limit(stroke.from.x, dx, area.x, area.right()) || !limit(stroke.from.y, dy, area.y, area.top()))
        return {};
    const auto at = [&](double share) {
        return Point{std::round(stroke.from.x + share * dx), std::round(stroke.from.y + share * dy)};
    };
    return Segment{begin > 0 ? at(begin) : stroke.from, end < 1 ? at(end) : stroke.to};
}

void addStroke(std::vector<Segment>& strokes, const Segment& stroke, const Rect& sight) {
    if (outside(stroke, sight.inset(-reach))) return;
    const Rect nearby = sight.inset(-far);
    if (nearby.contains(stroke.from) && nearby.contains(stroke.to)) // all but a few: nothing to divide
        strokes.push_back(stroke);
    else if (const auto near = within(stroke, nearby))
        strokes.push_back(*near);
}

/// Points of a joined line in one column.
struct UprightRun {
    double x = 0;
    double low = 0;
    double high = 0;

    void add(double y) {
        low = std::min(low, y);
        high = std::max(high, y);
    }
    [[nodiscard]] bool isStroke() const { return low < high; }
    [[nodiscard]] bool reaches(double y) const { return low <= y && y <= high; }
};

/// Whether a stroke from one pixel column to the next lies under the upright strokes of both: between its
/// ends it leaves neither column, and in each column both of its ends' heights are painted.
bool isCovered(const Segment& slant, const UprightRun& from, const UprightRun& to) {
    return std::abs(to.x - from.x) == 1 && from.isStroke() && to.isStroke() && from.reaches(slant.to.y)
           && to.reaches(slant.from.y);
}

/// Upright strokes through one column, as a count for each pixel from \p bottom on.
class Column {
public:
    explicit Column(const Rect& sight)
        : bottom(std::floor(sight.y)), size(std::max(0.0, std::ceil(sight.top()) - bottom)),
          changes(static_cast<std::size_t>(size) + 1) {}

    void add(const Ticks::Tick& tick) {
        const auto [y1, y2] = std::minmax(tick.y1, tick.y2);
        const auto from = static_cast<std::size_t>(std::clamp(y1 - bottom, 0.0, size));
        const auto to = static_cast<std::size_t>(std::clamp(y2 - bottom, 0.0, size));
        ++changes[from];
        --changes[to];
        first = std::min(first, from);
        last = std::max(last, to);
        ++total;
    }

    /// Writes the strokes at \p x, at most \p enough over a pixel, and begins anew.
    void flush(double x, int enough, std::vector<Ticks::Tick>& strokes) {
        if (total == 1 && enough > 0)
            flushOnly(x, strokes);
        else
            flushStack(x, enough, strokes);
        first = changes.size();
        last = 0;
        total = 0;
    }

private:
    [[nodiscard]] double at(std::size_t y) const { return bottom + static_cast<double>(y); }

    /// Nothing to stack: few readings have a column each.
    void flushOnly(double x, std::vector<Ticks::Tick>& strokes) {
        changes[first] = 0;
        changes[last] = 0;
        if (first < last) strokes.push_back({x, at(first), at(last)});
    }

    void flushStack(double x, int enough, std::vector<Ticks::Tick>& strokes) {
        int count = 0;
        starts.clear();
        for (std::size_t y = first; y <= last && y < changes.size(); ++y) {
            if (changes[y] == 0) continue;
            count += changes[y];
            changes[y] = 0;
            const auto open = static_cast<std::size_t>(std::min(count, enough));
            for (; starts.size() > open; starts.pop_back())
                strokes.push_back({x, starts.back(), at(y)});
            while (starts.size() < open)
                starts.push_back(at(y));
        }
    }

    double bottom;
    double size;
    std::vector<int> changes; ///< how many strokes begin, less those that end, at each pixel
    std::vector<double> starts;
    std::size_t first = changes.size();
    std::size_t last = 0;
    int total = 0; ///< strokes
};

/// One bit for each place of an area.
class Places {
public:
    explicit Places(const Rect& within)
        : area(within), height(static_cast<std::size_t>(std::max(0.0, std::floor(area.height) + 1))),
          bits(height * static_cast<std::size_t>(std::max(0.0, std::floor(area.width) + 1))) {}

    /// \return whether the point lies in the area and had not been taken
    bool take(Point point) {
        const double x = point.x - area.x;
        const double y = point.y - area.y;
        if (!(x >= 0 && y >= 0 && x <= area.width && y <= area.height)) return false;
        const std::size_t place = static_cast<std::size_t>(x) * height + static_cast<std::size_t>(y);
        if (bits[place]) return false;
        bits[place] = true;
        return true;
    }

private:
    Rect area;
    std::size_t height;
    std::vector<bool> bits;
};

Rect wholePixels(const Rect& rect) {
    const double x = std::floor(rect.x);
    const double y = std::floor(rect.y);
    return {x, y, std::ceil(rect.right()) - x, std::ceil(rect.top()) - y};
}

} // namespace

std::vector<Segment> joinedStrokes(std::span<const Point> points, const Rect& sight, bool eachUnitIsAPixel) {
    std::vector<Segment> strokes;
    strokes.reserve(points.size());
    UprightRun before;
    for (std::size_t first = 0; first < points.size();) {
        UprightRun run{points[first].x, points[first].y, points[first].y};
        std::size_t next = first + 1;
        for (; next < points.size() && points[next].x == run.x; ++next)
            run.add(points[next].y);
        if (first > 0) {
            const Segment slant{points[first - 1], points[first]};
            if (!eachUnitIsAPixel || !isCovered(slant, before, run)) addStroke(strokes, slant, sight);
        }
        if (next - first > 1) addStroke(strokes, {{run.x, run.low}, {run.x, run.high}}, sight);
        first = next;
        before = run;
    }
    return strokes;
}

std::vector<Point> visibleMarks(std::span<const Point> points, const Rect& sight) {
    Places places(wholePixels(sight.inset(-reach)));
    std::vector<Point> marks;
    for (std::size_t i = points.size(); i > 0; --i)
        if (places.take(points[i - 1])) marks.push_back(points[i - 1]);
    std::ranges::reverse(marks);
    return marks;
}

std::vector<Ticks::Tick> stackedTicks(std::span<const Ticks::Tick> ticks, const Rect& sight, int enough) {
    // Readings are in the order of their dates, so that this is rarely needed.
    std::vector<Ticks::Tick> sorted;
    if (!std::ranges::is_sorted(ticks, {}, &Ticks::Tick::x)) {
        sorted.assign(ticks.begin(), ticks.end());
        std::ranges::stable_sort(sorted, {}, &Ticks::Tick::x);
        ticks = sorted;
    }
    Column column(sight);
    std::vector<Ticks::Tick> strokes;
    for (std::size_t i = 0; i < ticks.size(); ++i) {
        const double x = ticks[i].x;
        if (x < sight.x - reach || x > sight.right() + reach) continue;
        column.add(ticks[i]);
        if (i + 1 == ticks.size() || ticks[i + 1].x != x) column.flush(x, enough, strokes);
    }
    return strokes;
}

int enoughStrokes(double opacity) {
    // Each stroke leaves that share of the distance to the colour; rounding keeps it from ever arriving, but
    // the steps are whole.
    const double left = 1 - opacity;
    if (left <= 0) return 1;
    if (opacity <= 0) return 0;
    const double untilHalf = std::log(0.5 / 255) / std::log(left);
    const double rounding = 0.5 / opacity + 1;
    return static_cast<int>(std::ceil(untilHalf) + std::ceil(rounding));
}

} // namespace zel

#pragma once
// Which readings a picture's scales have no room for: they are counted, and the picture says so.

#include "chart/Picture.h"

#include <cstdint>
#include <initializer_list>

namespace zel {

/// What a scale shows, both ends included.
struct ScaleRange {
    std::int64_t least = 0;
    std::int64_t most = 0;

    bool operator==(const ScaleRange&) const = default;
};

/// Readings beyond the ends of a picture's scales.
struct OffScale {
    int above = 0;
    int below = 0;

    bool operator==(const OffScale&) const = default;
};

struct ScaledValue {
    std::uint32_t value = 0;
    ScaleRange scale;
};

/// Adds one reading, by those of its values that the picture shows: on each side once, and only where one of
/// them lies.
void countOffScale(OffScale& counts, std::initializer_list<ScaledValue> reading);

/// What is counted: readings, or points of a trend that reach beyond the scale in part.
enum class OffScaleOf : std::int32_t { readings, points };

/// "3 readings above the scale, 1 reading below the scale"; empty for none.
[[nodiscard]] QString offScaleText(const OffScale& counts, OffScaleOf what = OffScaleOf::readings);
/// Whether the shortest form of drawOffScale() lies in \p room.
[[nodiscard]] bool hasRoomForOffScale(const OffScale& counts, const Rect& room);
/// The same in the top right corner of \p room: in fewer words and smaller type where there is less room, at
/// last an arrow with the number, beyond the room's edges rather than not at all.
void drawOffScale(Picture& picture, const OffScale& counts, const Rect& room,
                  OffScaleOf what = OffScaleOf::readings);

} // namespace zel

#pragma once

#include "chart/ChartReadings.h"
#include "chart/ChartScale.h"
#include "chart/Picture.h"

namespace zel {

/// The readings of one chart as lines and marks. Whole numbers.
struct ReadingLines {
    std::vector<PolyLine> lines; ///< of runs without a gap of more than 30 days
    PointMarks marks;
    Ticks ticks;                ///< from systolic to diastolic
    std::vector<Circle> hollow; ///< the marks of readings that are left out, each place once
    int excluded = 0;           ///< readings left out that lie in the period
    std::size_t count = 0;      ///< accepted readings in reach
    std::size_t inPeriod = 0;   ///< those of them that lie in the period itself
    OffScale offScale;          ///< of those in the period
};

[[nodiscard]] ReadingLines bloodLines(const std::vector<ChartReading>& readings, const ChartScale& scale,
                                      ViewSelection view);
[[nodiscard]] ReadingLines pulseLines(const std::vector<ChartReading>& readings, const ChartScale& scale,
                                      ViewSelection view);

/// Where a reading is shown, for whoever points at it.
struct ChartPoint {
    float x = 0; ///< whole numbers; as small as they may be, for there are many
    float y = 0;
    const ReadingModel* reading = nullptr;
};

/// The marks in the plot, in the order of their dates.
[[nodiscard]] std::vector<ChartPoint> bloodPoints(const std::vector<ChartReading>& readings,
                                                  const ChartScale& scale, ViewSelection view);
[[nodiscard]] std::vector<ChartPoint> pulsePoints(const std::vector<ChartReading>& readings,
                                                  const ChartScale& scale, ViewSelection view);

} // namespace zel

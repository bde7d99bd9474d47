#pragma once

#include "chart/Picture.h"
#include "report/ReportSource.h"

namespace zel {

/// Limits of the settings, in mmHg; 0: none.
struct Limits {
    std::uint32_t sys = 0;
    std::uint32_t dia = 0;

    [[nodiscard]] int count() const { return int{sys > 0} + int{dia > 0}; }
};

/// What stands on a printed chart and has to be explained.
struct ChartMarks {
    Limits limits;         ///< those that lie in its scale
    bool readings = false; ///< of any period
    bool comments = false;
    bool downloads = false;
    bool excluded = false; ///< readings that are left out, which the chart shows apart
};

/// The blood-pressure chart over the pulse chart.
[[nodiscard]] ChartMarks drawGraph(Picture& picture, const ReportSource& report, const Rect& rect);
/// How to read the charts, in two lines of which the lower one stands on \p at.
void drawGraphLegend(Picture& picture, const ReportSource& report, const ChartMarks& marks, Point at,
                     double width);
/// The blood-pressure chart alone, with its legend.
void drawBloodGraph(Picture& picture, const ReportSource& report, const Rect& rect);

/// A thin black frame.
void drawBlackFrames(Picture& picture, const Rect& rect);
void append(Picture& picture, Picture part);
/// Such as "140/90 mmHg"; empty for none.
[[nodiscard]] QString limitsText(const Limits& limits);
[[nodiscard]] Limits limitsOf(const ReportSource& report);

} // namespace zel

#include "chart/ChartScale.h"

#include <cstdint>

namespace zel {

namespace {

constexpr int belowBase = 20;  ///< the plot begins that much below the base value
constexpr int bloodSpan = 180; ///< mmHg from the bottom to the top of the plot
constexpr int pulseSpan = 80;  ///< beats per minute

double valueToY(const ChartScale& scale, double value, const ScaleRange& range) {
    const auto least = static_cast<double>(range.least), span = static_cast<double>(range.most) - least;
    return scale.chartRect.y + (value - least) * scale.chartRect.height / span;
}

ScaleRange rangeOf(const ChartScale& scale, int span) {
    const std::int64_t least = std::int64_t{scale.iScaleBase} - belowBase;
    return scale.fitted.value_or(ScaleRange{least, least + span});
}

} // namespace

int setScaleBase(int number) { return static_cast<int>((std::int64_t{number} + 9) / 10 * 10); }

ChartScale::ChartScale(const Rect& total, const Period& shown, bool noBaseArea, int base)
    : totalRect(total), whiteRect{total.x + scaleWidth, total.y, total.width - scaleWidth, total.height},
      chartRect(whiteRect), time{shown.begin, shown.end, whiteRect.x, whiteRect.width}, iScaleBase(base) {
    if (noBaseArea) return;
    chartRect.y += getBaseAreaHeight();
    chartRect.height -= getBaseAreaHeight();
}

double ChartScale::mapValToY(double value) const { return valueToY(*this, value, bloodRange()); }

double ChartScale::mapPulseValToY(double value) const { return valueToY(*this, value, pulseRange()); }

ScaleRange ChartScale::bloodRange() const { return rangeOf(*this, bloodSpan); }

ScaleRange ChartScale::pulseRange() const { return rangeOf(*this, pulseSpan); }

} // namespace zel

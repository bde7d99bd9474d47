#pragma once

#include "app/graph/ChartView.h"

namespace zel {

/// What the two charts show, for who cannot see them: a line for each measure that has readings in the
/// period.
struct ChartWords {
    QString blood, pulse;
};
[[nodiscard]] ChartWords spokenFigures(const ChartSource& source);

} // namespace zel

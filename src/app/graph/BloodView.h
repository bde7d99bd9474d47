#pragma once

#include "app/graph/ChartView.h"

namespace zel {

/// The chart of systolic and diastolic pressure.
class BloodView final : public ChartView {
    Q_OBJECT
public:
    BloodView(const ChartSource& toShow, QWidget* parent);

protected:
    [[nodiscard]] std::vector<Point> marksOf(const ReadingModel& reading) const override;
};

} // namespace zel

#include "app/graph/BloodView.h"

#include <cmath>

namespace zel {

using namespace Qt::StringLiterals;

BloodView::BloodView(const ChartSource& toShow, QWidget* parent)
    : ChartView(u"BloodView"_s, qtTrId("bloodChart"), DrawBlood, toShow, parent) {
    setMinimumHeight(86);
}

std::vector<Point> BloodView::marksOf(const ReadingModel& reading) const {
    const ChartScale at = scale();
    const double x = std::trunc(at.time.calcXPos(reading.ReadingDate.value_or(at.time.begin)));
    return {{x, std::trunc(at.mapValToY(reading.sys))}, {x, std::trunc(at.mapValToY(reading.dia))}};
}

} // namespace zel

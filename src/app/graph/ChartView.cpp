#include "app/graph/ChartView.h"

#include "chart/StyleTable.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zel {

namespace {

constexpr double reach = 4; ///< of the pointer, from the middle of a mark
constexpr int ringSize = 11;

QRect ringAround(QPoint mark) {
    return {mark - QPoint(ringSize / 2, ringSize / 2), QSize(ringSize, ringSize)};
}

} // namespace

ChartView::ChartView(const QString& name, const QString& title, const ChartStyle& start,
                     const ChartSource& toShow, QWidget* parent)
    : PictureView(name, title, parent), source(toShow), chartStyle(start) {
    setMouseTracking(true);
}

/// Points of readings that the store has replaced must not be met any more.
void ChartView::invalidate() {
    points.reset();
    pointed = nullptr;
    PictureView::invalidate();
}

void ChartView::setScaleBase(int number) {
    const int rounded = zel::setScaleBase(number);
    if (rounded == chartStyle.iScaleBase) return;
    chartStyle.iScaleBase = rounded;
    const ReadingModel* kept = pointed;
    invalidate();
    setPointed(kept);
}

ChartScale ChartView::scale() const {
    return {area(), source.period, chartStyle.noBaseArea, chartStyle.iScaleBase};
}

std::optional<Instant> ChartView::timeAt(int x) const {
    const ChartScale at = scale();
    if (x < at.chartRect.x || x >= at.chartRect.right()) return {};
    return at.time.XPosToDate(x);
}

std::optional<Instant> ChartView::pointedTime() const { return pointerX ? timeAt(*pointerX) : std::nullopt; }

ChartInput ChartView::input(const Rect& rect) const {
    ChartStyle style = chartStyle;
    style.showDataType = source.view;
    return {source.data, source.period, source.sysStandard, source.diaStandard, style, rect};
}

Picture ChartView::makePicture(const Rect& rect) { return drawChart(input(rect), source.zone).picture; }

/// Beside the numbers of the scale, which begin at the very edge.
QRect ChartView::focusRect() const { return rect().adjusted(scaleWidth, 0, 0, 0); }

const ChartPoint* ChartView::pointAt(Point at) {
    if (!points) points = chartPoints(input(area()));
    const ChartPoint* nearest = nullptr;
    double shortest = reach;
    auto point = std::ranges::lower_bound(*points, at.x - reach, {}, &ChartPoint::x);
    for (; point != points->end() && point->x <= at.x + reach; ++point) {
        const double distance = std::max(std::abs(point->x - at.x), std::abs(point->y - at.y));
        if (distance > shortest) continue;
        shortest = distance;
        nearest = &*point;
    }
    return nearest;
}

void ChartView::mouseMoveEvent(QMouseEvent* event) {
    pointerX = event->position().toPoint().x();
    const ChartPoint* point = pointAt(toPicture(event->position().toPoint()));
    if (!point)
        emit hovered(nullptr, {});
    else
        emit hovered(point->reading, toView({point->x, point->y}));
}

void ChartView::leaveEvent(QEvent*) {
    pointerX.reset();
    emit hovered(nullptr, {});
}

void ChartView::focusOutEvent(QFocusEvent* event) {
    PictureView::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        emit focusLeft();
}

void ChartView::setPointed(const ReadingModel* reading) {
    if (reading == pointed) return;
    updateMarks();
    pointed = reading;
    updateMarks();
}

QPoint ChartView::place(const ReadingModel& reading) const { return toView(marksOf(reading).front()); }

void ChartView::updateMarks() {
    if (!pointed) return;
    for (const Point& mark : marksOf(*pointed))
        update(ringAround(toView(mark)).adjusted(-2, -2, 2, 2));
}

void ChartView::paintOver(QPainter& painter) {
    if (!pointed) return;
    painter.setPen(QPen(shade(fixColor(gcViewBackgroundTop), colours()), 2));
    for (const Point& mark : marksOf(*pointed))
        if (scale().chartRect.contains(mark)) painter.drawEllipse(ringAround(toView(mark)));
}

} // namespace zel
